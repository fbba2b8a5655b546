#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"
#include "tests/support/trc_text.h"

// What is told of a file that is looked at.

namespace {

using nlohmann::json;
using test::ProgramResult;
using test::Replaced;
using test::SmallMotion;
using test::TrcText;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr char kRate[] =
    "orvane: walk.htr: warning: The frame rate has a fraction: \"59.94\" (line 7, column 15). 59 "
    "is "
    "taken: a minute lasts 60.96 s. [htr-rate-cut]\n";

class InfoReportTest : public test::OrvaneTest {
 protected:
  InfoReportTest() {
    Write("walk.htr", Replaced(SmallMotion(), "DataFrameRate 60", "DataFrameRate 59.94"));
  }

  ProgramResult Info(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), "info");
    return Orvane(arguments);
  }
};

TEST_F(InfoReportTest, TellsOfAMotionFileBesideItsPage) {
  const ProgramResult result = Info({"walk.htr"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, kRate);
  EXPECT_THAT(result.output, HasSubstr("  Frame rate      59 frames per second\n"));
  Write("walk.htr", SmallMotion());
  EXPECT_EQ(Info({"walk.htr"}).error, "");
}

TEST_F(InfoReportTest, TellsOfAMarkerFileBesideItsPage) {
  TrcText text{.markers = {"Head", "Toe"}, .frames = {{"1,5\t2\t3", ""}, {"1\t2\t3", "4\t5\t6"}}};
  text.frame_count = 3;
  Write("walk.trc", text.Text());
  const ProgramResult result = Info({"walk.trc"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(
      result.error,
      "orvane: walk.trc: warning: NumFrames announces 3, and the file holds 2 (line 3, column "
      "7). The frames that are there are shown. [trc-frame-count]\n"
      "orvane: walk.trc: warning: Numbers are written with decimal commas: \"1,5\" (line 7, "
      "column 9). A number ends at the comma: 1 is taken for 1,5. [trc-decimal-commas]\n"
      "orvane: walk.trc: note: A marker has gaps: \"Toe\" (line 7, column 1). A marker has no "
      "position in its gaps. [trc-marker-gaps]\n");
  EXPECT_THAT(result.output, HasSubstr("  Frames          3 announced, 2 found"));
}

TEST_F(InfoReportTest, JsonHasTheFindingsAndNothingElseIsWritten) {
  Write("walk.trc", TrcText{.markers = {""}, .frames = {{"1\t2\t3"}}}.Text());
  const ProgramResult motion = Info({"walk.htr", "--json"});
  EXPECT_EQ(motion.error, kRate);
  EXPECT_EQ(json::parse(motion.output)["findings"], json::parse(R"([{
    "code": "htr-rate-cut", "severity": "warning", "count": 1, "line": 7, "column": 15,
    "names": ["59.94"], "cause": "The frame rate has a fraction",
    "consequence": "59 is taken: a minute lasts 60.96 s."}])"));
  const json markers = json::parse(Info({"walk.trc", "--json"}).output);
  EXPECT_EQ(markers["version"], 2);
  EXPECT_EQ(markers["findings"][0]["code"], "trc-name-empty");
}

TEST_F(InfoReportTest, WritesTheReportToAFile) {
  EXPECT_EQ(Info({"walk.htr", "--report", "report.json"}).status, 0);
  const json report = json::parse(Read("report.json"));
  EXPECT_EQ(report["version"], 2);
  EXPECT_EQ(report["files"][0]["file"], "walk.htr");
  EXPECT_EQ(report["files"][0]["action"], "inspect");
  EXPECT_EQ(report["files"][0]["findings"][0]["code"], "htr-rate-cut");
}

TEST_F(InfoReportTest, WritesTheReportOfAFileThatIsRefused) {
  Write("walk.htr", Replaced(SmallMotion(), "FileVersion 1", "FileVersion 2"));
  Write("walk.trc", TrcText{.markers = {}, .frames = {}}.Text());
  for (const auto& [file, code] :
       {std::pair("walk.htr", "htr-value-refused"), std::pair("walk.trc", "trc-markers-missing")}) {
    const ProgramResult result = Info({file, "--report", "report.json"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.error, StartsWith(std::string("orvane: ") + file + ": error: "));
    const json report = json::parse(Read("report.json"));
    EXPECT_EQ(report["files"][0]["findings"][0]["code"], code);
  }
}

TEST_F(InfoReportTest, RefusesAReportInThePlaceOfTheFile) {
  Write("walk.trc", TrcText{.markers = {"Head"}, .frames = {{"1\t2\t3"}}}.Text());
  for (const char* file : {"walk.htr", "walk.trc"}) {
    const std::string bytes = Read(file);
    EXPECT_EQ(Info({file, "--report", std::string("./") + file}).status, 2);
    EXPECT_EQ(Read(file), bytes);
  }
}

TEST_F(InfoReportTest, WithoutAReportNothingIsLookedFor) {
  const ProgramResult result = Info({"walk.htr", "--no-report", "--json"});
  EXPECT_EQ(result.error, "");
  EXPECT_THAT(json::parse(result.output)["findings"], IsEmpty());
  EXPECT_EQ(Info({"walk.htr", "--no-report", "--report", "report.json"}).status, 2);
}

// What is odd in the motion is not known then.
TEST_F(InfoReportTest, OfTheHierarchyAloneNothingIsLookedFor) {
  EXPECT_EQ(Info({"walk.htr", "--hierarchy"}).error, "");
  EXPECT_EQ(Info({"walk.htr", "--hierarchy", "--report", "report.json"}).status, 2);
  EXPECT_THAT(Names(), ElementsAre("walk.htr"));
}

// It stands in the place of the line that is behind it.
TEST_F(InfoReportTest, RatesBehindACommentAreShownAsTheFileHasThem) {
  TrcText text{.markers = {"Head"}, .frames = {{"1\t2\t3"}}};
  text.data_rate = "59.94";
  Write("walk.trc", Replaced(text.Text(), "\nDataRate", "\n# captured\nDataRate"));
  EXPECT_THAT(Info({"walk.trc"}).output,
              HasSubstr("  Data rate       59 frames per second (the whole part of 59.94)\n"));
}

}  // namespace
