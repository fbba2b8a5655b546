#include "tests/cli/convert/convert_test.h"

#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using test::ConvertTest;
using test::ProgramResult;
using test::Replaced;
using test::Slashed;
using test::TrcText;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr char kRefused[] = "The file is does not have a compatible \"(X/Y/Z)\" header state";

std::string BrokenTake() { return "a poem\n"; }

// What is told of a take, and of a broken one.
constexpr char kGapWithMapping[] =
    "A marker has gaps: \"Toe\" (line 8, column 1). Where such a marker is kept, DROPOUT is "
    "written. [trc-marker-gaps]\n";
constexpr char kGap[] =
    "A marker has gaps: \"Toe\" (line 8, column 1). A gap is written as DROPOUT. "
    "[trc-marker-gaps]\n";
constexpr char kBroken[] =
    "The first line needs tabs between fields, not blanks: \"a poem\" (line 1, column 1). The file "
    "is refused. "
    "[trc-tabs-missing]\n";

TEST_F(ConvertTest, ConvertsOneFileBesideItself) {
  Write("walk.trc", Take());
  const ProgramResult result = Convert({"walk.trc"});
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_EQ(result.error, std::string("orvane: walk.trc: note: ") + kGap);
  EXPECT_EQ(result.output,
            "File      Frames  Kept  Dropped  Dropouts  Found  Output    Status\n"
            "walk.trc       2     2        0         1  1n     walk.bvk  converted\n"
            "1 of 1 converted\n");
  EXPECT_THAT(Names(), ElementsAre("walk.bvk", "walk.trc"));
  EXPECT_THAT(ReadText("walk.bvk"), HasSubstr("$Filename   walk\n"
                                              "$DateTime   TIME\n\n"));
  EXPECT_THAT(ReadText("walk.bvk"), EndsWith("$Order\nHead1 Toe \n\n$Points\n"
                                             "1\t1.000000\t-3.000000\t2.000000"
                                             "\t4.000000\t-6.000000\t5.000000\t\n\n"
                                             "2\t1.000000\t-3.000000\t2.000000\tDROPOUT\t\n\n"));
}

TEST_F(ConvertTest, RenamesAndDropsMarkersByTheMapping) {
  Write("walk.trc", Take());
  Write("map.mnm", "HEAD\tHead1\t\n");
  const ProgramResult result = Convert({"walk.trc", "--mapping", "map.mnm"});
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_THAT(result.output,
              HasSubstr("walk.trc       2     1        1         0  3n     walk.bvk"));
  EXPECT_THAT(ReadText("walk.bvk"), HasSubstr("$Order\nHEAD \n\n$Points\n"));
}

TEST_F(ConvertTest, WarnsOfMarkersThatGetOneName) {
  const auto take = [](const std::vector<std::string>& markers) {
    return TrcText{.markers = markers, .frames = {TrcText::Frame(markers.size(), "1\t2\t3")}}
        .Text();
  };
  Write("walk.trc", take({"Head1", "Toe", "Head2"}));
  Write("map.mnm", "HEAD\tHead1\t\nLTOE\tToe\t\nHEAD\tHead2\t\n");
  const std::string warning =
      "orvane: map.mnm: warning: A standard marker stands in the mapping again: \"HEAD\" (line 3, "
      "column 1). A capture with \"Head1\" and \"Head2\" becomes a file with two markers of this "
      "name. [mnm-standard-twice]\n"
      "orvane: walk.trc: warning: The mapping has \"HEAD\" for 2 markers: Head1, Head2 (line 4, "
      "column 27). Who reads the converted file cannot tell them apart. [mnm-name-shared]\n";
  ProgramResult result = Convert({"walk.trc", "--mapping", "map.mnm", "--dry-run", "--quiet"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, warning);
  result = Convert({"walk.trc", "--mapping", "map.mnm", "--quiet"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, warning);
  EXPECT_THAT(ReadText("walk.bvk"), HasSubstr("$Order\nHEAD LTOE HEAD \n"));
  EXPECT_EQ(Convert({"walk.trc", "--force"}).error, "");

  Write("walk.trc", take({"a", "Toe", "b", "c", "Head", "d", "e"}));
  Write("map.mnm", "C7 a\nC7 b\nC7 c\nLTOE Toe\nC7 d\nT10 Head\nC7 e\n");
  result = Convert({"walk.trc", "--mapping", "map.mnm", "--json", "--force"});
  EXPECT_EQ(json::parse(result.output)["files"][0]["warnings"],
            json::array({"The mapping has \"C7\" for 5 markers: a, b, c, ... Who reads the "
                         "converted file cannot tell them apart."}));
}

TEST_F(ConvertTest, AddsTheOffsetInEitherSpace) {
  Write("walk.trc", Take());
  EXPECT_EQ(Convert({"walk.trc", "--offset", "10,20,40"}).status, 0);
  EXPECT_THAT(ReadText("walk.bvk"), HasSubstr("1\t11.000000\t-43.000000\t22.000000\t"));
  EXPECT_EQ(
      Convert({"walk.trc", "--offset", "10,20,40", "--offset-space", "skelder", "--force"}).status,
      0);
  EXPECT_THAT(ReadText("walk.bvk"), HasSubstr("1\t11.000000\t17.000000\t42.000000\t"));
  EXPECT_EQ(Convert({"walk.trc", "--offset", "-10,-0.5,1e1", "--force"}).status, 0);
  EXPECT_THAT(ReadText("walk.bvk"), HasSubstr("1\t-9.000000\t-13.000000\t1.500000\t"));
}

TEST_F(ConvertTest, ConvertsABatchAndGoesOnAfterABadFile) {
  Write("a.trc", Take("1"));
  Write("50%done.trc", BrokenTake());
  Write("c.trc", Take("3"));
  MakeFolder("out");
  const ProgramResult result =
      Convert({"a.trc", "50%done.trc", "nowhere.trc", "c.trc", "--output-dir", "out"});
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(Slashed(result.output),
            "File         Frames  Kept  Dropped  Dropouts  Found  Output           Status\n"
            "a.trc             2     2        0         1  1n     out/a.bvk        converted\n"
            "50%done.trc       -     -        -         -  1e     out/50%done.bvk  broken\n"
            "nowhere.trc       -     -        -         -  -      out/nowhere.bvk  unreadable\n"
            "c.trc             2     2        0         1  1n     out/c.bvk        converted\n"
            "2 of 4 converted\n");
  EXPECT_EQ(result.error, std::string("orvane: 50%done.trc: error: ") + kBroken +
                              "orvane: a.trc: note: in 2 files, first here: " + kGap +
                              "orvane: 50%done.trc: " + kRefused +
                              "\norvane: nowhere.trc: No such file or directory\n");
  EXPECT_THAT(NamesOf("out"), ElementsAre("ConvertBVKLog.txt", "a.bvk", "c.bvk"));
  const std::string folder = Slashed(Absolute(".")) + "/";
  EXPECT_EQ(Slashed(ReadText("out/ConvertBVKLog.txt")),
            "Orvane OrvaneFileIO TRC to BVK Batch Conversion Log\n"
            "TIME\n"
            "Processing 3 files...\n"
            "file: " +
                folder + "a.trc done.\n" + folder + "500one.trc: " + kRefused + "\n" +
                "file: " + folder + "50%done.trc done.\n" + "file: " + folder + "c.trc done.\n");
}

// The plug-in keeps the rate of the file that it has read before.
TEST_F(ConvertTest, RefusesFilesThatEndBeforeTheirRates) {
  Write("walk.trc", Take());
  const std::string first_line = "PathFileType\t4\t(X/Y/Z)\twalk\n";
  for (const std::string& text :
       {std::string(), first_line, first_line + "DataRate\n", first_line + "#\nDataRate\n"}) {
    Write("short.trc", text);
    const std::string cause =
        text.empty()
            ? "orvane: short.trc: error: The file is empty (line 1, column 1). Nothing is read; "
              "was "
              "it saved, or copied, to its end? [trc-empty]\n"
            : "orvane: short.trc: The file ends before its third line, which tells its rates "
              "[trc-markers-missing]\n"
              "  It would be written with a camera rate that is not its own.\n";
    for (const auto& arguments :
         {std::vector<std::string>{"walk.trc", "short.trc", "--force"}, {"short.trc"}}) {
      const ProgramResult result = Convert(arguments);
      EXPECT_EQ(result.status, 1);
      EXPECT_THAT(result.error, HasSubstr(cause));
      EXPECT_THAT(result.error, Not(HasSubstr("orvane: short.trc: error: The file holds no")));
      EXPECT_EQ(result.error.find("third line") == std::string::npos, text.empty());
      EXPECT_THAT(result.output, HasSubstr("short.bvk  refused\n"));
      EXPECT_FALSE(Exists("short.bvk"));
    }
    EXPECT_THAT(Convert({"short.trc", "--dry-run"}).output,
                HasSubstr("short.trc -> short.bvk (refused)\n"));
  }
  Write("short.trc", BrokenTake());
  EXPECT_EQ(Convert({"walk.trc", "short.trc", "--force", "--keep-broken"}).status, 1);
  EXPECT_FALSE(Exists("short.bvk"));
}

TEST_F(ConvertTest, GivesBrokenFilesNoRateOfTheFilesBefore) {
  Write("walk.trc", Take());
  Write("poem.trc", "a poem\nof three\nlines\n");
  EXPECT_EQ(Convert({"walk.trc", "poem.trc", "--keep-broken", "--jobs", "1"}).status, 1);
  EXPECT_THAT(ReadText("walk.bvk"), HasSubstr("$CaptureRate 60\n"));
  EXPECT_THAT(ReadText("poem.bvk"), HasSubstr("$CaptureRate 0\n"));
}

TEST_F(ConvertTest, DeliversBrokenFilesOnlyWhenAsked) {
  Write("poem.trc", "a poem\nof three\nlines\n");
  ProgramResult result = Convert({"poem.trc"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error, std::string("orvane: poem.trc: error: ") + kBroken +
                              "orvane: poem.trc: " + kRefused + "\n");
  EXPECT_FALSE(Exists("poem.bvk"));
  result = Convert({"poem.trc", "--keep-broken"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.output, HasSubstr("poem.bvk  broken\n0 of 1 converted\n"));
  EXPECT_THAT(result.error,
              EndsWith(std::string("orvane: poem.trc: ") + kRefused +
                       "\norvane: poem.bvk: delivered all the same, for --keep-broken: 0 frames of "
                       "0 markers\n"));
  EXPECT_THAT(ReadText("poem.bvk"), EndsWith("$Order\n"));
}

TEST_F(ConvertTest, TellsTheReadersWordsWhateverTheLogMakesOfTheName) {
  std::vector<std::string> arguments = {"--jobs", "1"};
  for (const char* name : {"%s%s%n.trc", "%999999999d.trc", "50%done.trc"}) {
    Write(name, BrokenTake());
    arguments.emplace_back(name);
  }
  const ProgramResult result = Convert(arguments);
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error, std::string("orvane: %s%s%n.trc: error: in 3 files, first here: ") +
                              kBroken + "orvane: %s%s%n.trc: " + kRefused +
                              "\norvane: %999999999d.trc: " + kRefused +
                              "\norvane: 50%done.trc: " + kRefused + "\n");
}

TEST_F(ConvertTest, RefusesHeadersThatPromiseFarTooMuch) {
  TrcText take{.markers = {"Head1"}, .frames = {{"1\t2\t3"}}};
  take.frame_count = 2'000'000'000;
  Write("wrong.trc", take.Text());
  Write("walk.trc", Take());
  const ProgramResult result = Convert({"wrong.trc", "walk.trc"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error,
            std::string("orvane: walk.trc: note: ") + kGap +
                "orvane: wrong.trc: The header announces 2000000000 frames, but the file holds 1 "
                "[trc-frames-too-many]\n"
                "  Is \"NumFrames\" right?\n");
  EXPECT_THAT(result.output, HasSubstr("wrong.bvk  refused\n"));
  EXPECT_TRUE(Exists("walk.bvk"));
  EXPECT_FALSE(Exists("wrong.bvk"));
}

TEST_F(ConvertTest, WarnsOfFramesThatAreMissing) {
  TrcText take{.markers = {"Head1"}, .frames = {{"1\t2\t3"}}};
  take.frame_count = 3;
  Write("walk.trc", take.Text());
  ProgramResult result = Convert({"walk.trc"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error,
            "orvane: walk.trc: warning: NumFrames announces 3, and the file holds 1 (line 3, "
            "column 7). DROPOUT is written for 2 missing frames. [trc-frame-count]\n");
  EXPECT_THAT(result.output,
              HasSubstr("walk.trc       3     1        0         2  1w     walk.bvk"));
  take.frame_count = 0;
  Write("walk.trc", take.Text());
  result = Convert({"walk.trc", "--force"});
  EXPECT_EQ(
      result.error,
      "orvane: walk.trc: warning: The header announces no frames (line 3, column 7). No frame "
      "is written. [trc-frames-unannounced]\n");
}

TEST_F(ConvertTest, TellsANegativeNumberOfFramesAsItIsAnnounced) {
  const TrcText take{.markers = {"Head1"}, .frames = {{"1\t2\t3"}}};
  Write("walk.trc", Replaced(take.Text(), "\t1\t1\tmm", "\t-5\t1\tmm"));
  const ProgramResult result = Convert({"walk.trc"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(
      result.error,
      "orvane: walk.trc: warning: The header announces no frames (line 3, column 7). No frame "
      "is written. [trc-frames-unannounced]\n");
  EXPECT_THAT(result.output,
              HasSubstr("walk.trc       0     1        0         0  1w     walk.bvk"));
  EXPECT_THAT(ReadText("walk.bvk"), HasSubstr("$NumFrames -5\n"));
  EXPECT_EQ(json::parse(Convert({"walk.trc", "--json", "--force"}).output)["files"][0]["frames"],
            0);
}

TEST_F(ConvertTest, ShowsWhatItWouldDo) {
  Write("walk.trc", Take());
  Write("poem.trc", BrokenTake());
  Write("map.mnm", "HEAD\tHead1\t\nToe\tToe\t\n");
  Write("less.mnm", "HEAD\tHead1\t\n");
  ProgramResult result = Convert({"walk.trc", "poem.trc", "--mapping", "map.mnm", "--dry-run"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.output,
            "walk.trc -> walk.bvk (planned)\n"
            "  rename  Head1 to HEAD\n"
            "  keep    Toe\n"
            "poem.trc -> poem.bvk (broken)\n");
  EXPECT_EQ(result.error,
            std::string("orvane: poem.trc: error: ") + kBroken +
                "orvane: map.mnm: note: 2 names of the mapping are no standard markers: \"HEAD\", "
                "\"Toe\" (line 1, column 1). Such a name is written all the same. "
                "[mnm-standard-unknown]\n"
                "orvane: walk.trc: note: " +
                kGapWithMapping + "orvane: poem.trc: " + kRefused + "\n");
  result = Convert({"walk.trc", "--mapping", "less.mnm", "--dry-run"});
  EXPECT_THAT(result.output, HasSubstr("  drop    Toe\n"));
  result = Convert({"walk.trc", "--dry-run", "--json"});
  const json preview = json::parse(result.output);
  EXPECT_EQ(preview["files"][0]["markers"][1]["written_as"], "Toe");
  EXPECT_EQ(preview["files"][0]["status"], "planned");
  EXPECT_THAT(Names(), ElementsAre("less.mnm", "map.mnm", "poem.trc", "walk.trc"));
}

TEST_F(ConvertTest, WritesJson) {
  Write("walk.trc", Take());
  Write("poem.trc", BrokenTake());
  const ProgramResult result = Convert({"walk.trc", "poem.trc", "--json"});
  EXPECT_EQ(result.status, 1);
  const json report = json::parse(result.output);
  EXPECT_EQ(report["version"], 2);
  EXPECT_EQ(report["files"][0]["status"], "converted");
  EXPECT_EQ(report["files"][0]["output"], "walk.bvk");
  EXPECT_EQ(report["files"][0]["dropouts"], 1);
  EXPECT_EQ(report["files"][1]["delivered"], false);
  EXPECT_TRUE(report["files"][1]["frames"].is_null());
  EXPECT_EQ(report["files"][1]["errors"][0], kRefused);
  EXPECT_EQ(report["logs"][0], "ConvertBVKLog.txt");
}

// How often `text` holds the word.
std::size_t CountOf(const std::string& word, const std::string& text) {
  std::size_t count = 0;
  for (auto at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) ++count;
  return count;
}

TEST_F(ConvertTest, CountsTheDropoutsThatItWritesHoweverItLooksAtTheFile) {
  Write("map.mnm", "HEAD\tToe\n");
  TrcText text{.markers = {"Head1", "Toe", "Heel"},
               .frames = {{"1\t2\t3", "", ""}, {"", "1\t2\t3", ""}, {"", "", ""}, {"", "", ""}}};
  for (const int announced : {2, 4, 7}) {
    text.frame_count = announced;
    Write("walk.trc", text.Text());
    const std::vector<std::vector<std::string>> cases = {
        {}, {"--cut", "2:3"}, {"--mapping", "map.mnm"}, {"--mapping", "map.mnm", "--cut", "1:2"}};
    for (const auto& flags : cases) {
      for (const bool is_reported : {true, false}) {
        std::vector<std::string> arguments = {"walk.trc", "--json", "--force"};
        arguments.insert(arguments.end(), flags.begin(), flags.end());
        if (!is_reported) arguments.emplace_back("--no-report");
        const ProgramResult result = Convert(arguments);
        ASSERT_EQ(result.status, 0) << result.error;
        EXPECT_EQ(json::parse(result.output)["files"][0]["dropouts"],
                  CountOf("DROPOUT\t", ReadText("walk.bvk")))
            << announced << ' ' << testing::PrintToString(arguments);
      }
    }
  }
}

TEST_F(ConvertTest, RefusesWrongArguments) {
  Write("walk.trc", Take());
  MakeFolder("out");
  const std::vector<std::vector<std::string>> cases = {
      {},
      {"walk.trc", "run.trc", "-o", "step.bvk"},
      {"walk.trc", "-o", "step.bvk", "--output-dir", "out"},
      {"walk.trc", "-o", "step.bvk", "--keep-broken"},
      {"walk.trc", "--offset", "1,2"},
      {"walk.trc", "--offset", "1,2,three"},
      {"walk.trc", "--offset", "1,2,3,4"},
      {"walk.trc", "--offset", "1e39,2,3"},
      {"walk.trc", "--offset", "1,-inf,3"},
      {"walk.trc", "--offset", "1,2,nan"},
      {"walk.trc", "--offset-space", "trc"},
      {"walk.trc", "--offset", "1,2,3", "--offset-space", "room"},
      {"walk.trc", "--jobs", "0"},
  };
  for (const auto& arguments : cases) {
    EXPECT_EQ(Convert(arguments).status, 2) << testing::PrintToString(arguments);
  }
  EXPECT_THAT(Names(), ElementsAre("out", "walk.trc"));
}

TEST_F(ConvertTest, TellsWhatItCannotReadOrWrite) {
  Write("walk.trc", Take());
  ProgramResult result = Convert({"walk.trc", "--mapping", "missing.mnm"});
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.error, "orvane: missing.mnm: No such file or directory\n");
  result = Convert({"walk.trc", "--output-dir", "missing"});
  EXPECT_EQ(result.status, 3);
  EXPECT_THAT(result.error, HasSubstr("missing"));
  result = Convert({"run"});
  EXPECT_EQ(result.status, 3);
  EXPECT_THAT(result.error, HasSubstr("run.TRC: No such file or directory\n"));
  EXPECT_THAT(Names(), ElementsAre("walk.trc"));
}

// A mapping cannot name such a marker, so that it is not in the file.
TEST_F(ConvertTest, WarnsOfNamesWithBlanksThatGetIntoTheFile) {
  Write("walk.trc", Replaced(Take(), "Toe", "left toe"));
  Write("map.mnm", "LFHD\tHead1\n");
  EXPECT_THAT(Convert({"walk.trc"}).error,
              HasSubstr("warning: A name holds blanks: \"left toe\" (line 4, column 21)"));
  EXPECT_THAT(Convert({"walk.trc", "--mapping", "map.mnm", "--force"}).error,
              Not(HasSubstr("holds blanks")));
}

}  // namespace
