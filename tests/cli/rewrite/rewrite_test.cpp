#include <nlohmann/json.hpp>

#include "formats/htr/reader.h"
#include "formats/trc/document.h"
#include "tests/cli/orvane_test.h"
#include "tests/support/document_bits.h"
#include "tests/support/replaced_text.h"
#include "tests/support/trc_text.h"

namespace {

using nlohmann::json;
using test::BitsOf;
using test::CodesIn;
using test::ProgramResult;
using test::Replaced;
using test::SmallMotion;
using test::TrcText;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using Flags = std::vector<std::string>;

class RewriteTest : public test::OrvaneTest {
 protected:
  RewriteTest() {
    TrcText text;
    text.markers = {"LFHD", "right head"};
    text.data_rate = "59.94";
    text.camera_rate = "120";
    text.units = "cm";
    text.first_frame = 101;
    text.frames = {
        {"10\t170\t5.25", "-10\t170\t5"}, {"10\t171\t0.1", ""}, {"11\t172\t5", "1\t2\t3"}};
    Write("take.trc", text.Text());
    Write("take.htr", SmallMotion());
  }

  ProgramResult Rewrite(const std::string& input, const std::string& output,
                        const Flags& flags = {}) const {
    Flags arguments = {"rewrite", input, "-o", output};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }

  std::string MarkerBits(const std::string& name) const {
    orvane::TRCDocument document;
    EXPECT_EQ(document.ReadBytes(Read(name), false), "");
    return BitsOf(document);
  }

  std::string MotionBits(const std::string& name) const {
    orvane::HtrDocument document;
    EXPECT_EQ(ReadHtrBytes(document, Read(name), true), "");
    return BitsOf(document);
  }
};

TEST_F(RewriteTest, OfMarkersKeepsEveryNumberGapAndRate) {
  const ProgramResult result = Rewrite("take.trc", "new.trc");
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_EQ(result.output,
            "Rewritten take.trc\n  Markers   2\n  Frames    101 to 103 at 59.94 frames per second\n"
            "  File      new.trc (" +
                std::to_string(Read("new.trc").size()) + " bytes)\n");
  EXPECT_EQ(MarkerBits("new.trc"), MarkerBits("take.trc"));
  EXPECT_THAT(Read("new.trc"), HasSubstr("\r\n59.94\t120\t3\t2\tcm\t59.94\t101\t3\r\n"));
  EXPECT_THAT(Read("new.trc"), HasSubstr("\r\n102\t0.016683\t10\t171\t0.1\t\t\t\r\n"));
}

// The rate of the file is 59.94, of which readers keep 59.
TEST_F(RewriteTest, KeepsTheTimesOfFrames) {
  Write("late.trc", Replaced(Read("take.trc"), "101\t0.000\t", "101\t2.270\t"));
  struct Edit {
    Flags flags;
    std::string row;  // the beginning of the first
  };
  const std::vector<Edit> edits = {{{}, "101\t2.270000\t"},
                                   {{"--cut", "103:103"}, "103\t2.303367\t"},
                                   {{"--rate", "29.97"}, "101\t2.270000\t"},
                                   {{"--start-frame", "1"}, "1\t2.270000\t"},
                                   {{"--start-time", "-0.5"}, "101\t-0.500000\t"},
                                   {{"--cut", "102:103", "--start-time", "7"}, "102\t7.000000\t"}};
  for (const Edit& edit : edits) {
    Flags flags = edit.flags;
    flags.emplace_back("--force");
    ASSERT_EQ(Rewrite("late.trc", "new.trc", flags).status, 0);
    EXPECT_THAT(Read("new.trc"), HasSubstr("\r\n\r\n" + edit.row));
  }
  ASSERT_EQ(Rewrite("take.htr", "motion.csv", {"--cut", "2:2"}).status, 0);
  EXPECT_THAT(Read("motion.csv"), HasSubstr("\r\n2,0.016667,")) << "counted from the first frame";
  ASSERT_EQ(Rewrite("late.trc", "new.csv", {"--cut", "102:103"}).status, 0);
  EXPECT_THAT(Read("new.csv"), HasSubstr("\r\n102,2.286683,"));
}

TEST_F(RewriteTest, TakesTimesThatAreNumbersAlone) {
  for (const std::string time : {"", "00:00:02:10", "x", "1e999", "2,27"}) {
    Write("odd.trc", Replaced(Read("take.trc"), "101\t0.000\t", "101\t" + time + "\t"));
    ASSERT_EQ(Rewrite("odd.trc", "new.trc", {"--force", "--no-report"}).status, 0);
    EXPECT_THAT(Read("new.trc"), HasSubstr("\r\n101\t0.000000\t")) << time;
  }
}

TEST_F(RewriteTest, TellsOfATimeThatIsNoNumberWhereTimesAreWritten) {
  Write("code.trc", Replaced(Read("take.trc"), "101\t0.000\t", "101\t10:22:07:05\t"));
  const auto told = [this](const std::string& output, const Flags& flags) {
    Flags all = {"--force"};
    all.insert(all.end(), flags.begin(), flags.end());
    return Rewrite("code.trc", output, all).error;
  };
  const std::string text =
      "warning: The time of the first frame is \"10:22:07:05\", not a number of seconds (line 7, "
      "column 1). Times begin at 0 in the new file; --start-time gives another one. "
      "[trc-time-unreadable]\n";
  EXPECT_THAT(told("new.trc", {}), HasSubstr(text));
  EXPECT_THAT(told("new.csv", {}), HasSubstr(text));
  EXPECT_THAT(told("new.c3d", {}),
              HasSubstr("The new file holds no times: frames follow each other at its rate. "
                        "[trc-time-unreadable]\n"));
  EXPECT_THAT(told("new.trc", {"--start-time", "2.5"}), Not(HasSubstr("trc-time")));
}

TEST_F(RewriteTest, OfMotionKeepsEveryNumberAndTheRate) {
  Write("take.htr", Replaced(SmallMotion(), "Rate 60", "Rate 29.97"));
  EXPECT_EQ(Rewrite("take.htr", "new.htr").status, 0);
  EXPECT_EQ(MotionBits("new.htr"), MotionBits("take.htr"));
  EXPECT_THAT(Read("new.htr"), HasSubstr("\r\nDataFrameRate 29.97\r\n"));
  EXPECT_THAT(Read("new.htr"), HasSubstr("\r\nSpine\t0\t100\t0\t0\t0\t0\t250.5\r\n"));
}

TEST_F(RewriteTest, OfWhatWasRewrittenChangesNoByte) {
  for (const std::string extension : {".trc", ".htr"}) {
    ASSERT_EQ(Rewrite("take" + extension, "new" + extension).status, 0);
    ASSERT_EQ(Rewrite("new" + extension, "newer" + extension).status, 0);
    // The first line of a marker file tells its name.
    const std::string newer = Read("newer" + extension);
    const bool is_named = extension == ".trc";
    EXPECT_EQ(is_named ? Replaced(newer, "newer.trc", "new.trc") : newer, Read("new" + extension));
  }
}

TEST_F(RewriteTest, WritesToStandardOutputAndReadsFromStandardInput) {
  ASSERT_EQ(Rewrite("take.trc", "new.trc").status, 0);
  test::ProgramRun run = Command({"rewrite", "-", "-o", "-", "--name", "new.trc"});
  run.input_file = folder_.File("take.trc");
  run.writes_bytes = true;
  const ProgramResult result = RunProgram(run);
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_EQ(result.output, Read("new.trc"));
  EXPECT_THAT(result.error, HasSubstr("[trc-marker-gaps]"));
}

TEST_F(RewriteTest, ReplacesNothingUnlessItIsForced) {
  Write("new.trc", "mine");
  EXPECT_EQ(Rewrite("take.trc", "new.trc").status, 3);
  EXPECT_EQ(Read("new.trc"), "mine");
  EXPECT_EQ(Rewrite("take.trc", "take.trc", {"--force"}).status, 2);
  EXPECT_EQ(Rewrite("take.trc", "new.trc", {"--force"}).status, 0);
}

struct Misuse {
  std::string input;
  std::string output;
  Flags flags;
  std::string error;
};

TEST_F(RewriteTest, SaysWhatBecomesOfWhichFile) {
  const std::vector<Misuse> misuses = {
      {"take.trc", "new.xyz", {}, "orvane: new.xyz: says by no extension what is to be written\n"},
      {"take.trc", "new", {}, "orvane: new: says by no extension what is to be written\n"},
      {"take.trc", "new.htr", {}, "orvane: new.htr: of TRC files no .htr is made\n"},
      {"take.htr", "new.trc", {}, "orvane: new.trc: of HTR files no .trc is made\n"},
      {"take.txt",
       "new.trc",
       {},
       "orvane: take.txt: is taken for an HTR file, and of those no .trc is made\n"
       "  --as says what it is.\n"},
      {"take.trc", "-", {"--json"}, "orvane: --json: is written to standard output"},
      {"take.htr",
       "new.bvh",
       {"--start-time", "1"},
       "orvane: --start-time: is for TRC and CSV files\n"},
      {"take.trc", "new.csv", {"--start-time", "1s"}, "a number of seconds is expected"},
      {"take.trc", "new.csv", {"--space", "local"}, "orvane: --space: is for HTR files\n"},
      {"take.trc", "new.csv", {"--rotations", "euler"}, "orvane: --rotations: is for HTR files\n"},
      {"take.trc", "new.trc", {"--rename", "A"}, "takes OLD=NEW, or a mapping"},
      {"take.trc", "new.trc", {"--rate", "fast"}, "a number of frames per second is expected"},
      {"take.trc", "new.trc", {"--resample", "linear"}, "--rate"}};
  for (const Misuse& misuse : misuses) {
    const ProgramResult result = Rewrite(misuse.input, misuse.output, misuse.flags);
    EXPECT_EQ(result.status, 2) << misuse.error;
    EXPECT_THAT(result.error, HasSubstr(misuse.error));
  }
  EXPECT_EQ(Rewrite("take.trc", "other.name", {"--to", "trc"}).status, 0);
  EXPECT_EQ(MarkerBits("other.name"), MarkerBits("take.trc"));
}

TEST_F(RewriteTest, TakesSomeFramesAndMarkersUnderOtherNames) {
  const ProgramResult result =
      Rewrite("take.trc", "new.trc",
              {"--cut", "102:110", "--select", "right head", "--rename", "right head=RFHD"});
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_THAT(result.error, HasSubstr("[cut-range-partly]"));
  EXPECT_THAT(Read("new.trc"), HasSubstr("\t2\t1\tcm\t59.94\t102\t2\r\n"));
  EXPECT_THAT(Read("new.trc"), HasSubstr("Frame#\tTime\tRFHD\t\t\t\r\n"));
  EXPECT_THAT(Read("new.trc"), HasSubstr("\r\n102\t0.016683\t\t\t\r\n103\t0.033367\t1\t2\t3\r\n"));
}

TEST_F(RewriteTest, TakesNamesOfAMapping) {
  Write("names.mnm", "LeftHead\tLFHD\t\r\nNose\tNS\t\r\n");
  const ProgramResult result = Rewrite("take.trc", "new.trc", {"--rename", "names.mnm"});
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_THAT(result.error, HasSubstr("\"NS\""));
  EXPECT_THAT(result.error, HasSubstr("[rewrite-rename-unknown]"));
  EXPECT_THAT(Read("new.trc"), HasSubstr("Frame#\tTime\tLeftHead\t\t\tright head\t\t\t\r\n"));
}

TEST_F(RewriteTest, RefusesNamesThatNothingHasAndSuchAsNoFileHolds) {
  const ProgramResult unknown = Rewrite("take.trc", "new.trc", {"--select", "LFHD,right haed"});
  EXPECT_EQ(unknown.status, 1);
  EXPECT_THAT(unknown.error,
              HasSubstr("\"right haed\". Nothing is written; did you mean \"right head\"? "
                        "[rewrite-select-unknown]\n"));
  EXPECT_THAT(unknown.error,
              HasSubstr("orvane: take.trc: nothing was written because of rewrite-select-unknown"));
  EXPECT_THAT(Rewrite("take.trc", "new.trc", {"--select", "walker:LFHD"}).error,
              HasSubstr("did you mean \"LFHD\"? [rewrite-select-unknown]\n"));
  const ProgramResult twice = Rewrite("take.trc", "new.trc", {"--rename", "LFHD=right head"});
  EXPECT_EQ(twice.status, 1);
  EXPECT_THAT(twice.error, HasSubstr("\"right head\" would be there twice"));
  EXPECT_FALSE(Exists("new.trc"));
}

TEST_F(RewriteTest, CutsFromTheFirstFrameOrToTheLast) {
  EXPECT_EQ(Rewrite("take.trc", "new.trc", {"--cut", "102:"}).status, 0);
  EXPECT_THAT(Read("new.trc"), HasSubstr("\r\n102\t"));
  EXPECT_THAT(Read("new.trc"), HasSubstr("\r\n103\t"));
  EXPECT_THAT(Read("new.trc"), Not(HasSubstr("\r\n101\t")));
}

// "right head" is missing in frame 102.
TEST_F(RewriteTest, TellsOfGapsThatAreWrittenAlone) {
  const std::vector<std::pair<Flags, std::string>> told = {
      {{"--select", "LFHD"}, ""},
      {{"--cut", "103:103"}, ""},
      {{"--cut", "101:102"}, "orvane: take.trc: note: A marker has gaps: \"right head\". "},
      {{"--cut", "102:102"},
       "orvane: take.trc: warning: A marker has no position in any frame: \"right head\". "},
  };
  for (const auto& [flags, start] : told) {
    Flags all = flags;
    all.insert(all.end(), {"--force"});
    const std::string error = Rewrite("take.trc", "new.trc", all).error;
    EXPECT_EQ(
        error.find("gaps") != std::string::npos || error.find("no position") != std::string::npos,
        !start.empty())
        << error;
    EXPECT_THAT(error, HasSubstr(start));
  }
  EXPECT_EQ(Rewrite("take.trc", "new.trc",
                    {"--select", "LFHD", "--strict", "--force", "--allow", "trc-rate-cut"})
                .status,
            0);
}

TEST_F(RewriteTest, SaysWhatBecomesOfOdditiesInTheFormatThatIsWritten) {
  struct Case {
    std::string output;
    std::string told;
  };
  Write("odd.htr", Replaced(SmallMotion(), "ScaleFactor 1.0", "ScaleFactor 2.0"));
  const std::vector<Case> cases = {
      {"new.htr", "It is written as it is; nothing is multiplied by it. [htr-scale-factor]"},
      {"new.csv",
       "Nothing is multiplied by it, and the new file does not say it. [htr-scale-factor]"},
      {"new.bvh",
       "Nothing is multiplied by it, and the new file does not say it. [htr-scale-factor]"}};
  for (const Case& each : cases) {
    EXPECT_THAT(Rewrite("odd.htr", each.output).error, HasSubstr(each.told));
  }
  const std::string resampled =
      Rewrite("take.htr", "fast.htr", {"--rate", "90", "--resample", "slerp"}).error;
  EXPECT_THAT(resampled,
              HasSubstr("interpolated linearly, rotations by slerp. [rewrite-resampled]"));
}

TEST_F(RewriteTest, TakesNamesOneByOneOrSeveralAtOnce) {
  const std::vector<Flags> all = {
      {"--select", "LFHD", "--select", "right head", "--rename", "LFHD=A", "--rename",
       "right head=B"},
      {"--select", "LFHD,right head", "--rename", "LFHD=A,right head=B"},
  };
  for (Flags flags : all) {
    flags.emplace_back("--force");
    const ProgramResult result = Rewrite("take.trc", "new.trc", flags);
    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_THAT(Read("new.trc"), HasSubstr("\r\nFrame#\tTime\tA\t\t\tB\t\t\t\r\n"));
  }
  ASSERT_EQ(Rewrite("take.trc", "new.trc", {"--rename", "LFHD=A,B", "--force"}).status, 0);
  EXPECT_THAT(Read("new.trc"), HasSubstr("\tTime\tA,B\t\t\t")) << "a name may hold a comma";
}

TEST_F(RewriteTest, KeepsWhatSelectedSegmentsHangFrom) {
  const ProgramResult result = Rewrite("take.htr", "new.htr", {"--select", "Spine"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(CodesIn(result.error), ElementsAre("rewrite-select-ancestors"));
  EXPECT_EQ(MotionBits("new.htr"), MotionBits("take.htr"));
}

TEST_F(RewriteTest, ConvertsUnitsAndTurnsHeights) {
  ASSERT_EQ(Rewrite("take.trc", "new.trc", {"--unit", "mm", "--up", "z"}).status, 0);
  EXPECT_THAT(Read("new.trc"), HasSubstr("\t3\t2\tmm\t"));
  EXPECT_THAT(Read("new.trc"),
              HasSubstr("\r\n101\t0.000000\t100\t52.5\t-1700\t-100\t50\t-1700\r\n"));
  Write("lying.htr", Replaced(SmallMotion(), "Gravity Y", "Gravity Z"));
  const ProgramResult kept = Rewrite("lying.htr", "kept.htr");
  EXPECT_THAT(CodesIn(kept.error), ElementsAre("htr-axis-ignored"));
  EXPECT_THAT(Read("kept.htr"), HasSubstr("GlobalAxisofGravity Z\r\n"));
  const ProgramResult turned = Rewrite("lying.htr", "turned.htr", {"--up", "z"});
  EXPECT_EQ(turned.error, "");
  EXPECT_THAT(Read("turned.htr"), HasSubstr("GlobalAxisofGravity Y\r\n"));
  EXPECT_THAT(Read("turned.htr"), HasSubstr("\r\nHips\t0\t0\t-900\t-90\t0\t0\t100\r\n"));
}

TEST_F(RewriteTest, DoubtsThatHeightsAreTurnedThatLieAlongY) {
  const std::string told =
      "note: The file seems to have its heights along Y. --up z takes them along Z and turns them: "
      "what stands lies on its side. [rewrite-up-doubtful]\n";
  for (const std::string walk : {"/examples/walk.trc", "/examples/walk.htr"}) {
    const std::string kind = walk.substr(walk.size() - 4);
    const std::string source = ORVANE_SOURCE_DIR + walk;
    EXPECT_THAT(Rewrite(source, "lying" + kind, {"--up", "z"}).error, HasSubstr(told));
    EXPECT_THAT(Rewrite(source, "same" + kind, {"--up", "y"}).error, Not(HasSubstr("doubtful")));
    EXPECT_THAT(Rewrite("lying" + kind, "other" + kind, {"--up", "z"}).error,
                Not(HasSubstr("doubtful")));
  }
  Write("said.htr",
        Replaced(test::ReadFile(ORVANE_SOURCE_DIR "/examples/walk.htr"), "Gravity Y", "Gravity Z"));
  EXPECT_THAT(Rewrite("said.htr", "turned.htr", {"--up", "z"}).error, Not(HasSubstr("doubtful")));
}

TEST_F(RewriteTest, SaysWhatAFootIs) {
  const ProgramResult result = Rewrite("take.trc", "new.trc", {"--unit", "ft"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error,
              HasSubstr("warning: Lengths are converted from cm to ft. A foot is taken as 304.8 mm "
                        "and a yard as 914.4 mm; an import takes 2.1167 mm and 0.7056 mm. "
                        "[rewrite-feet]\n"));
  EXPECT_EQ(Rewrite("take.trc", "other.trc", {"--unit", "ft", "--strict"}).status, 1);
  EXPECT_FALSE(Exists("other.trc"));
}

TEST_F(RewriteTest, ChangesTheRateByWholeFactorsUnlessFramesMayLieBetween) {
  ASSERT_EQ(Rewrite("take.trc", "half.trc", {"--rate", "29.97"}).status, 0);
  EXPECT_THAT(Read("half.trc"), HasSubstr("\r\n29.97\t120\t2\t2\tcm\t59.94\t101\t2\r\n"));
  EXPECT_THAT(Read("half.trc"), HasSubstr("\r\n102\t0.033367\t11\t172\t5\t1\t2\t3\r\n"));
  const ProgramResult refused = Rewrite("take.trc", "new.trc", {"--rate", "60"});
  EXPECT_EQ(refused.status, 1);
  EXPECT_THAT(refused.error,
              HasSubstr("--rate 60 is no whole part of its 59.94 frames per second"));
  const ProgramResult more =
      Rewrite("take.trc", "more.trc", {"--rate", "119.88", "--resample", "linear"});
  EXPECT_EQ(more.status, 0);
  EXPECT_THAT(more.error,
              HasSubstr("note: Of 5 frames at the new rate, 2 lie between those of the file. They "
                        "are interpolated linearly; where a marker has a gap at either side, it "
                        "has one there. [rewrite-resampled]\n"));
  EXPECT_THAT(Read("more.trc"), HasSubstr("\r\n102\t0.008342\t10\t170.5\t2.675\t\t\t\r\n"));
}

TEST_F(RewriteTest, NumbersFramesFromWhereItIsTold) {
  ASSERT_EQ(Rewrite("take.htr", "new.htr", {"--start-frame", "-7", "--decimals", "1"}).status, 0);
  EXPECT_THAT(Read("new.htr"), HasSubstr("\r\n-6\t10.0\t0.0\t0.0\t0.0\t0.0\t90.0\t1.0\r\n"));
  const ProgramResult result = Rewrite("take.htr", "far.htr", {"--start-frame", "2147483647"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error, HasSubstr("its frames would have numbers that no file can hold"));
}

TEST_F(RewriteTest, RefusesNamesThatWouldEndTheFile) {
  Write("end.htr", Replaced(Replaced(SmallMotion(), "NumSegments 2", "NumSegments 3"),
                            "Spine Hips\n", "Spine Hips\nEndofFile Hips\n"));
  Write("end.htr", Replaced(Read("end.htr"), "250.5\n", "250.5\nEndofFile 0 1 0 0 0 0 1\n"));
  const ProgramResult result = Rewrite("end.htr", "new.htr");
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error, HasSubstr("its segment \"EndofFile\" could not be read back: it means "
                                      "something else in an HTR file\n  --rename gives it another "
                                      "name.\n"));
  EXPECT_EQ(Rewrite("end.htr", "new.htr", {"--rename", "EndofFile=Toe"}).status, 0);
}

TEST_F(RewriteTest, TellsItselfAsJson) {
  const ProgramResult result = Rewrite("take.trc", "new.trc", {"--json"});
  const json told = json::parse(result.output);
  EXPECT_EQ(told["version"], 1);
  EXPECT_EQ(told["input"], "take.trc");
  EXPECT_EQ(told["markers"], 2);
  EXPECT_EQ(told["frames"], json({101, 103}));
  EXPECT_EQ(told["frame_rate"], "59.94");
  EXPECT_EQ(told["file"], "new.trc");
  EXPECT_EQ(told["bytes"], Read("new.trc").size());
  EXPECT_EQ(told["findings"][0]["code"], "trc-rate-cut");
  EXPECT_EQ(told["findings"][0]["severity"], "note");
}

TEST_F(RewriteTest, WritesTheReportOnTheFileAndOnTheEdits) {
  EXPECT_EQ(Rewrite("take.trc", "new.trc", {"--report", "r.json", "--rename", "X=Y"}).status, 0);
  const json told = json::parse(Read("r.json"));
  std::vector<std::string> codes;
  for (const json& finding : told["files"][0]["findings"]) codes.push_back(finding["code"]);
  EXPECT_THAT(codes, testing::Contains("rewrite-rename-unknown"));
  EXPECT_THAT(codes, testing::Contains("trc-marker-gaps"));
}

// What one can end by writing the file anew is gone then; what was lost before is lost.
TEST_F(RewriteTest, LeavesNothingToWonderAbout) {
  Write("odd.trc",
        "PathFileType\t3\t(X/Y/Z)\todd.trc\n\n59.94fps\t59.94\t7\t3\tcubits\t\n"
        "Frame#\tTime\tA\t\t\tB\t\t\n\tX1\n\n5\t0\t1\t2\t3,5\t4\t5\n7\t9\t1\tx\t2\t3\t4\t5\t6\n");
  EXPECT_EQ(Rewrite("odd.trc", "new.trc").status, 0);
  const ProgramResult check = Orvane({"check", "new.trc"});
  EXPECT_THAT(check.output, Not(HasSubstr("error")));
  EXPECT_THAT(CodesIn(Rewrite("new.trc", "newer.trc").error),
              ElementsAre("trc-rate-cut", "trc-camera-rate-cut"));
}

}  // namespace
