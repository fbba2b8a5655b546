#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "tests/cli/convert/convert_test.h"

// What a conversion tells of the files that it is made of, and what a strict user does with that.

namespace {

using nlohmann::json;
using test::ConvertTest;
using test::ProgramResult;
using test::TrcText;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// With one value that is not a number, and one gap.
std::string CommaTake() {
  return TrcText{.markers = {"Head1", "Toe"}, .frames = {{"1x5\t2\t3", "4\t5\t6"}, {"1\t2\t3", ""}}}
      .Text();
}

std::string CleanTake() {
  return TrcText{.markers = {"Head1", "Toe"}, .frames = {{"1\t2\t3", "4\t5\t6"}}}.Text();
}

constexpr char kComma[] =
    "A value is not a number: \"1x5\" (line 7, column 9). 1 is taken. "
    "[trc-number-unreadable]\n";
constexpr char kGap[] =
    "A marker has gaps: \"Toe\" (line 8, column 1). A gap is written as DROPOUT. "
    "[trc-marker-gaps]\n";
constexpr char kNotConverted[] =
    "With --strict the file is not converted because of trc-number-unreadable\n";

class ConvertReportTest : public ConvertTest {
 protected:
  json JsonOf(std::vector<std::string> arguments) const {
    arguments.emplace_back("--json");
    return json::parse(Convert(arguments).output);
  }
};

TEST_F(ConvertReportTest, TellsEachCodeInALineAndCountsThemInTheTable) {
  Write("walk.trc", CommaTake());
  const ProgramResult result = Convert({"walk.trc"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, std::string("orvane: walk.trc: warning: ") + kComma +
                              "orvane: walk.trc: note: " + kGap);
  EXPECT_EQ(result.output,
            "File      Frames  Kept  Dropped  Dropouts  Found  Output    Status\n"
            "walk.trc       2     2        0         1  1w 1n  walk.bvk  converted\n"
            "1 of 1 converted\n");
}

TEST_F(ConvertReportTest, QuietTellsNoNotes) {
  Write("walk.trc", CommaTake());
  const ProgramResult result = Convert({"walk.trc", "--quiet"});
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.error, std::string("orvane: walk.trc: warning: ") + kComma);
}

TEST_F(ConvertReportTest, OverSeveralFilesEachCodeIsALine) {
  Write("a.trc", Take());
  Write("b.trc", CommaTake());
  Write("c.trc", CommaTake());
  for (const char* jobs : {"1", "2"}) {
    const ProgramResult result = Convert({"a.trc", "b.trc", "c.trc", "--force", "--jobs", jobs});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.error, std::string("orvane: b.trc: warning: in 2 files, first here: ") +
                                kComma + "orvane: a.trc: note: in 3 files, first here: " + kGap);
    EXPECT_THAT(result.output, HasSubstr("c.trc       2     2        0         1  1w 1n  c.bvk"));
  }
}

TEST_F(ConvertReportTest, OverSeveralFilesAllTimesCount) {
  TrcText take{.markers = {"Head1", "Toe"}, .frames = {{"1x5\t2\t3", "4\t5\t6"}}};
  Write("a.trc", take.Text());
  take.frames.assign(3, {"1x5\t2x5\t3", "4\t5\t6"});
  Write("b.trc", take.Text());
  EXPECT_EQ(Convert({"a.trc", "b.trc"}).error,
            std::string("orvane: a.trc: warning: 7 times in 2 files, first here: ") + kComma);
}

TEST_F(ConvertReportTest, StrictRefusesFileByFile) {
  Write("bad.trc", CommaTake());
  Write("gap.trc", Take());
  Write("clean.trc", CleanTake());
  const std::vector<std::string> arguments = {"bad.trc", "gap.trc", "clean.trc", "--strict"};
  const ProgramResult result = Convert(arguments);
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error, std::string("orvane: bad.trc: warning: ") + kComma +
                              "orvane: bad.trc: note: in 2 files, first here: " + kGap +
                              "orvane: bad.trc: " + kNotConverted);
  EXPECT_THAT(result.output, HasSubstr("bad.bvk    refused\n"));
  EXPECT_THAT(result.output, EndsWith("2 of 3 converted\n"));
  EXPECT_THAT(Names(), ElementsAre("ConvertBVKLog.txt", "bad.trc", "clean.bvk", "clean.trc",
                                   "gap.bvk", "gap.trc"));
}

TEST_F(ConvertReportTest, StrictRefusesAFileAloneAndOneThatIsToBeKept) {
  Write("walk.trc", CommaTake());
  Write("poem.trc", "a poem\nof three\nlines\n");
  EXPECT_EQ(Convert({"walk.trc", "--strict"}).status, 1);
  EXPECT_EQ(Convert({"walk.trc", "poem.trc", "--strict", "--keep-broken"}).status, 1);
  EXPECT_THAT(Names(), ElementsAre("poem.trc", "walk.trc"));
}

TEST_F(ConvertReportTest, AllowLetsCodesPass) {
  Write("walk.trc", TrcText{.markers = {"Head1", ""}, .frames = {{"1x5\t2\t3", "4\t5\t6"}}}.Text());
  EXPECT_EQ(Convert({"walk.trc", "--strict", "--allow", "trc-number-unreadable"}).status, 1);
  EXPECT_FALSE(Exists("walk.bvk"));
  const ProgramResult result =
      Convert({"walk.trc", "--strict", "--allow", "trc-number-unreadable,trc-name-empty"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error, HasSubstr(kComma)) << "it is told all the same";
  EXPECT_EQ(Convert({"walk.trc", "--strict", "--force", "--allow", "trc-name-empty", "--allow",
                     "trc-number-unreadable"})
                .status,
            0);
}

TEST_F(ConvertReportTest, RefusesWrongArguments) {
  Write("walk.trc", CommaTake());
  const std::vector<std::vector<std::string>> cases = {
      {"--allow", "trc-number-unreadable"},
      {"--strict", "--allow", "trc-nothing"},
      {"--strict", "--no-report"},
      {"--report", "report.json", "--no-report"},
      {"--report", ""},
      {"--report", "walk.trc"},
      {"--report", "./walk.bvk"},
      {"--report", "map.mnm", "--mapping", "map.mnm"},
  };
  Write("map.mnm", "HEAD\tHead1\n");
  for (std::vector<std::string> arguments : cases) {
    arguments.insert(arguments.begin(), "walk.trc");
    EXPECT_EQ(Convert(arguments).status, 2) << testing::PrintToString(arguments);
  }
  EXPECT_THAT(Names(), ElementsAre("map.mnm", "walk.trc"));
  EXPECT_EQ(Read("walk.trc"), CommaTake());
}

TEST_F(ConvertReportTest, StrictRefusesWhatComesOutWithTwoOfAName) {
  Write("walk.trc", CleanTake());
  Write("twice.mnm", "HEAD\tHead1\nHEAD\tToe\n");
  const ProgramResult result =
      Convert({"walk.trc", "--mapping", "twice.mnm", "--strict", "--allow", "mnm-standard-twice"});
  EXPECT_EQ(result.status, 1) << "a mapping may be so for captures that hold one of the two";
  EXPECT_THAT(result.error, EndsWith("because of mnm-name-shared\n"));
  EXPECT_FALSE(Exists("walk.bvk"));
  EXPECT_EQ(Convert({"walk.trc", "--mapping", "twice.mnm", "--strict", "--allow",
                     "mnm-standard-twice,mnm-name-shared"})
                .status,
            0);
}

TEST_F(ConvertReportTest, StrictNamesEveryCodeThatItIsFor) {
  Write("walk.trc", TrcText{.markers = {"Head1", ""}, .frames = {{"1x5\t2\t3", "4\t5\t6"}}}.Text());
  EXPECT_THAT(Convert({"walk.trc", "--strict"}).error,
              EndsWith("orvane: walk.trc: With --strict the file is not converted because of "
                       "trc-name-empty, trc-number-unreadable\n"));
  EXPECT_THAT(Convert({"walk.trc", "--strict", "--dry-run", "--allow", "trc-name-empty"}).error,
              EndsWith("orvane: walk.trc: With --strict the file would not be converted because of "
                       "trc-number-unreadable\n"));
  Write("map.mnm", "LFHD\tHead1 or so\n");
  EXPECT_THAT(Convert({"walk.trc", "--strict", "--dry-run", "--mapping", "map.mnm"}).error,
              EndsWith("orvane: --strict: nothing would be written because of "
                       "mnm-rest-ignored\n"));
}

TEST_F(ConvertReportTest, AnOlderOutputThatStaysIsTold) {
  Write("a.trc", CommaTake());
  Write("b.trc", CommaTake());
  Write("odd.mnm", "LFHD\tHead1 or so\n");
  Write("none.mnm", "BVK");
  Write("a.bvk", "older");
  const std::string older = "orvane: a.bvk: is still the older one\n";
  EXPECT_THAT(Convert({"a.trc", "--strict", "--force"}).error, EndsWith(kNotConverted + older));
  EXPECT_THAT(Convert({"a.trc", "b.trc", "--strict", "--force"}).error,
              EndsWith(kNotConverted + older));
  EXPECT_THAT(Convert({"a.trc", "--strict", "--force", "--dry-run"}).error,
              Not(HasSubstr("older")));
  EXPECT_THAT(Convert({"a.trc", "--strict"}).error, Not(HasSubstr("older")));
  EXPECT_THAT(Convert({"a.trc", "--strict", "--force", "--mapping", "odd.mnm"}).error,
              HasSubstr(older));
  EXPECT_THAT(Convert({"a.trc", "--force", "--mapping", "none.mnm"}).error, EndsWith(older));
  Write("b.bvk", "older");
  EXPECT_THAT(Convert({"a.trc", "b.trc", "--strict", "--force"}).error,
              EndsWith("orvane: a.bvk: is the first of 2 outputs that are still the older ones\n"));
  EXPECT_EQ(Read("a.bvk"), "older");
}

TEST_F(ConvertReportTest, StrictRefusesAllForTheMapping) {
  Write("walk.trc", CleanTake());
  Write("map.mnm", "HEAD\tHead1 or so\n");
  const std::vector<std::string> arguments = {"walk.trc", "--mapping", "map.mnm",
                                              "--strict", "--report",  "report.json"};
  const ProgramResult result = Convert(arguments);
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.output, "");
  EXPECT_THAT(result.error, HasSubstr(" [mnm-rest-ignored]\n"));
  EXPECT_THAT(result.error,
              EndsWith("orvane: --strict: nothing was written because of mnm-rest-ignored\n"));
  EXPECT_FALSE(Exists("walk.bvk"));
  EXPECT_EQ(json::parse(Read("report.json"))["files"][0]["findings"][0]["code"],
            "mnm-rest-ignored");
}

TEST_F(ConvertReportTest, TheMappingIsToldOfOnceForAllFiles) {
  Write("a.trc", CleanTake());
  Write("b.trc", CleanTake());
  Write("map.mnm", "HEAD\tHead1 or so\n");
  const ProgramResult result = Convert({"a.trc", "b.trc", "--mapping", "map.mnm"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error,
            "orvane: map.mnm: warning: A line of the mapping holds more than two names: \"or so\" "
            "(line 1, column 12). What stands behind the second is not read. [mnm-rest-ignored]\n"
            "orvane: map.mnm: note: A name of the mapping is no standard marker: \"HEAD\" (line 1, "
            "column 1). Such a name is written all the same. "
            "[mnm-standard-unknown]\n"
            "orvane: a.trc: note: in 2 files, first here: A marker has no entry in the mapping: "
            "\"Toe\" (line 4, column 21). Such a marker is dropped. [mnm-marker-unmapped]\n");
  for (const auto& flags : {std::vector<std::string>{"--force"}, {"--dry-run"}}) {
    std::vector<std::string> arguments = {"a.trc", "b.trc", "--mapping", "map.mnm", "--force"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    const json report = JsonOf(arguments);
    EXPECT_EQ(report["mapping"]["file"], "map.mnm");
    EXPECT_EQ(report["mapping"]["warnings"], 1);
    EXPECT_EQ(report["mapping"]["findings"][0]["code"], "mnm-rest-ignored");
    EXPECT_EQ(report["files"][1]["findings"].size(), 1U);
  }
}

TEST_F(ConvertReportTest, ADryRunTellsTheSame) {
  Write("a.trc", CommaTake());
  Write("b.trc", Take());
  const ProgramResult shown = Convert({"a.trc", "b.trc", "--dry-run"});
  EXPECT_EQ(shown.status, 0);
  EXPECT_THAT(Names(), ElementsAre("a.trc", "b.trc"));
  EXPECT_EQ(shown.error, Convert({"a.trc", "b.trc"}).error);
  const ProgramResult strict = Convert({"a.trc", "b.trc", "--dry-run", "--strict", "--force"});
  EXPECT_EQ(strict.status, 1);
  EXPECT_THAT(strict.output, HasSubstr("a.trc -> a.bvk (refused)\n"));
  EXPECT_THAT(strict.output, HasSubstr("b.trc -> b.bvk (planned)\n"));
}

TEST_F(ConvertReportTest, WritesTheReportsToAFile) {
  Write("a.trc", CommaTake());
  Write("b.trc", CleanTake());
  Write("report.json", "an older one");
  const ProgramResult result = Convert({"a.trc", "b.trc", "--report", "report.json"});
  EXPECT_EQ(result.status, 0);
  const json report = json::parse(Read("report.json"));
  EXPECT_EQ(report["version"], 2);
  EXPECT_EQ(report["files"].size(), 2U);
  EXPECT_EQ(report["files"][0]["file"], "a.trc");
  EXPECT_EQ(report["files"][0]["action"], "convert");
  EXPECT_EQ(report["files"][0]["warnings"], 1);
  EXPECT_EQ(report["files"][0]["notes"], 1);
  EXPECT_EQ(report["files"][0]["findings"][0]["code"], "trc-number-unreadable");
  EXPECT_THAT(report["files"][1]["findings"], IsEmpty());
}

TEST_F(ConvertReportTest, AReportThatCannotBeWrittenCostsNothingElse) {
  Write("walk.trc", CommaTake());
  const ProgramResult result = Convert({"walk.trc", "--report", "nowhere/report.json"});
  EXPECT_EQ(result.status, 3);
  EXPECT_THAT(result.output, EndsWith("1 of 1 converted\n"));
  EXPECT_THAT(result.error, HasSubstr("orvane: nowhere/report.json: "));
  EXPECT_TRUE(Exists("walk.bvk"));
}

TEST_F(ConvertReportTest, WithoutAReportNothingIsLookedFor) {
  Write("walk.trc", CommaTake());
  Write("map.mnm", "HEAD\tHead1 or so\n");
  const ProgramResult result = Convert({"walk.trc", "--mapping", "map.mnm", "--no-report"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, "");
  EXPECT_THAT(result.output, HasSubstr("1        1         0  -      walk.bvk  converted\n"));
  const json report = JsonOf({"walk.trc", "--no-report", "--force"});
  EXPECT_THAT(report["files"][0]["findings"], IsEmpty());
  EXPECT_TRUE(report["mapping"].is_null());
}

TEST_F(ConvertReportTest, JsonHasTheFindingsOfEachFile) {
  Write("walk.trc", CommaTake());
  const json report = JsonOf({"walk.trc"});
  EXPECT_EQ(report["version"], 2);
  EXPECT_TRUE(report["mapping"].is_null());
  EXPECT_EQ(report["files"][0]["warnings"], json::array({"A value is not a number. 1 is taken."}));
  EXPECT_EQ(report["files"][0]["findings"][0], json::parse(R"({
    "code": "trc-number-unreadable", "severity": "warning", "count": 1, "line": 7, "column": 9,
    "names": ["1x5"], "cause": "A value is not a number",
    "consequence": "1 is taken."})"));
  EXPECT_EQ(report["files"][0]["findings"][1]["code"], "trc-marker-gaps");
  EXPECT_EQ(JsonOf({"walk.trc", "--dry-run", "--force"})["files"][0]["findings"],
            report["files"][0]["findings"]);
}

// The error says more than the finding would.
TEST_F(ConvertReportTest, WhatIsRefusedForItsFramesIsToldOnce) {
  TrcText take{.markers = {"Head1"}, .frames = {{"1\t2\t3"}}};
  take.frame_count = 2'000'000'000;
  Write("walk.trc", take.Text());
  const ProgramResult result = Convert({"walk.trc", "--json"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error,
            "orvane: walk.trc: The header announces 2000000000 frames, but the file holds 1 "
            "[trc-frames-too-many]\n"
            "  Is \"NumFrames\" right?\n");
  const json file = json::parse(result.output)["files"][0];
  EXPECT_EQ(file["findings"][0]["code"], "trc-frames-too-many");
  EXPECT_EQ(file["findings"][0]["severity"], "error");
}

TEST_F(ConvertReportTest, AFileThatItsReaderRefusesIsReportedBeforeItsWords) {
  Write("poem.trc", "a poem\nof three\nlines\n");
  const ProgramResult result = Convert({"poem.trc"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error,
            "orvane: poem.trc: error: The first line needs tabs between fields, not blanks: \"a "
            "poem\" (line 1, column 1). "
            "The file is refused. [trc-tabs-missing]\n"
            "orvane: poem.trc: The file is does not have a compatible \"(X/Y/Z)\" header state\n");
  EXPECT_THAT(result.output, HasSubstr("-  1e     poem.bvk  broken\n"));
}

}  // namespace
