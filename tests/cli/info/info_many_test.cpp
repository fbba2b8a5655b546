#include <filesystem>
#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"

// `orvane info` of several files and of folders.

namespace {

using nlohmann::json;
using test::ProgramResult;
using test::Replaced;
using test::Slashed;
using test::SmallMotion;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// Two markers in four frames at 120 frames per second, one of them with a gap.
std::string SmallMarkers() {
  return "PathFileType\t4\t(X/Y/Z)\twalk.trc\n"
         "DataRate\tCameraRate\tNumFrames\tNumMarkers\tUnits\tOrigDataRate\tOrigDataStartFrame\t"
         "OrigNumFrames\n"
         "120\t120\t4\t2\tmm\t120\t1\t4\n"
         "Frame#\tTime\tHead\t\t\tHand\t\t\t\n"
         "\t\tX1\tY1\tZ1\tX2\tY2\tZ2\n\n"
         "1\t0.0\t0\t1500\t0\t0\t0\t0\n"
         "2\t0.008\t0\t1500\t0\t0\t0\t0\n"
         "3\t0.017\t0\t1500\t0\t\t\t\n"
         "4\t0.025\t0\t1500\t0\t0\t0\t0\n";
}

class InfoManyTest : public test::OrvaneTest {
 protected:
  InfoManyTest() {
    std::filesystem::create_directories(folder_.Path() / "takes/june");
    Write("takes/a.htr", SmallMotion());
    Write("takes/b.trc", SmallMarkers());
    Write("takes/june/c.htr", Replaced(SmallMotion(), "DataFrameRate 60", "DataFrameRate 59.94"));
  }
};

TEST_F(InfoManyTest, ShowsALineAFile) {
  const ProgramResult result = Orvane({"info", "--recursive", "takes"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(Slashed(result.output),
            "File              Kind  Holds       Frames  Frames/s  Seconds  Subject                "
            "    Found\n"
            "takes/a.htr       HTR   2 segments       3        60    0.050  0.10 m tall, moves 0.1 "
            "m   -\n"
            "takes/b.trc       TRC   2 markers        4       120    0.033  1.50 m tall, moves "
            "0.00 m  1n\n"
            "takes/june/c.htr  HTR   2 segments       3        59    0.051  0.10 m tall, moves 0.1 "
            "m   1w\n");
}

TEST_F(InfoManyTest, TellsWhatIsOddALineACodeOverAllFiles) {
  Write("d.htr", Replaced(SmallMotion(), "DataFrameRate 60", "DataFrameRate 59.94"));
  EXPECT_THAT(Slashed(Orvane({"info", "takes/june/c.htr", "takes/a.htr", "d.htr"}).error),
              testing::StartsWith("orvane: takes/june/c.htr: warning: in 2 files, first here: The "
                                  "frame rate has a fraction: \"59.94\" (line 7, column 15)."));
}

TEST_F(InfoManyTest, AFileThatIsRefusedKeepsNoOtherFromBeingShown) {
  Write("bad.htr", "no motion");
  Write("bad.trc", "");
  const ProgramResult result = Orvane({"info", "bad.htr", "takes/a.htr", "bad.trc"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.output, HasSubstr("\nbad.htr      HTR   -                -         -        -"
                                       "  -                         refused\n"));
  EXPECT_THAT(result.output, HasSubstr("\ntakes/a.htr  HTR   2 segments"));
  EXPECT_THAT(result.error, HasSubstr("orvane: bad.htr: "));
  EXPECT_THAT(result.error, HasSubstr("orvane: bad.trc: "));
  const ProgramResult missing = Orvane({"info", "bad.htr", "nowhere.htr", "takes/a.htr"});
  EXPECT_EQ(missing.status, 3);
  EXPECT_THAT(missing.output, HasSubstr("\nnowhere.htr  HTR "));
  EXPECT_THAT(missing.output, HasSubstr("  unreadable\n"));
  EXPECT_THAT(missing.error, HasSubstr("orvane: nowhere.htr: No such file or directory\n"));
}

TEST_F(InfoManyTest, JsonHasWhatIsToldOfEachFileAlone) {
  for (const auto& [name, frames] :
       {std::pair{"takes/a.htr", false}, std::pair{"takes/b.trc", true}}) {
    std::vector<std::string> alone = {"info", "--json", name};
    std::vector<std::string> together = {"info", "--json", "takes/june/c.htr", name, "no.htr"};
    if (frames) {
      alone.push_back("--frames");
      together.push_back("--frames");
    }
    const ProgramResult result = Orvane(together);
    EXPECT_EQ(result.status, 3);
    const json all = json::parse(result.output);
    EXPECT_EQ(all["version"], 2);
    ASSERT_EQ(all["files"].size(), 2U);
    EXPECT_EQ(all["files"][0]["file"], "takes/june/c.htr");
    EXPECT_EQ(all["files"][1], json::parse(Orvane(alone).output));
  }
}

TEST_F(InfoManyTest, JsonOfAFolderHasFilesHoweverManyThereAre) {
  const json report = json::parse(Orvane({"info", "--json", "takes/june"}).output);
  EXPECT_EQ(report["files"].size(), 1U);
}

TEST_F(InfoManyTest, WritesOneReportOfAllFiles) {
  const ProgramResult result =
      Orvane({"info", "takes", "--recursive", "--report", "found.json", "--json"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(json::parse(Read("found.json"))["files"].size(), 3U);
  const ProgramResult refused = Orvane({"info", "takes", "--report", "takes/a.htr"});
  EXPECT_EQ(refused.status, 2);
  EXPECT_EQ(Read("takes/a.htr"), SmallMotion());
  EXPECT_EQ(Orvane({"info", "takes/a", "takes/b.trc", "--report", "takes/a.htr"}).status, 2);
}

TEST_F(InfoManyTest, LooksForNothingWhenToldNotTo) {
  const ProgramResult result = Orvane({"info", "takes", "takes/june", "--no-report"});
  EXPECT_THAT(result.error, Not(HasSubstr("[")));
  EXPECT_THAT(result.output, Not(HasSubstr("1w")));
}

TEST_F(InfoManyTest, OfHierarchiesTakesTheMotionFilesOfAFolder) {
  const ProgramResult result = Orvane({"info", "--hierarchy", "--recursive", "takes"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.output, HasSubstr("HTR   2 segments       3        60        -  -"));
  EXPECT_THAT(result.output, Not(HasSubstr("b.trc")));
}

TEST_F(InfoManyTest, AFolderIsMeantByItsWholeName) {
  Write("takes.htr", SmallMotion());
  EXPECT_EQ(json::parse(Orvane({"info", "--json", "takes"}).output)["files"].size(), 2U);
  EXPECT_EQ(json::parse(Orvane({"info", "--json", "takes.htr"}).output)["file"], "takes.htr");
}

TEST_F(InfoManyTest, AFolderWithoutFilesToShowIsSaidToBeOne) {
  std::filesystem::create_directories(folder_.Path() / "empty");
  const ProgramResult result = Orvane({"info", "empty"});
  EXPECT_EQ(result.status, 3);
  EXPECT_THAT(result.output, IsEmpty());
  EXPECT_EQ(result.error,
            "orvane: empty: The folder holds no file to show\n"
            "  Of a folder, files are shown whose names end in .htr or .trc.\n");
}

}  // namespace
