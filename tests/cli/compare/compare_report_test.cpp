#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"

// What is told of two files that are compared.

namespace {

using nlohmann::json;
using test::ProgramResult;
using test::Replaced;
using test::SmallMotion;
using testing::HasSubstr;
using testing::IsEmpty;

class CompareReportTest : public test::OrvaneTest {
 protected:
  CompareReportTest() {
    Write("a.htr", SmallMotion());
    Write("b.htr", Replaced(SmallMotion(), "2 10 0 0 0 0 90 1", "2 1O 0 0 0 0 90 1"));
  }

  ProgramResult Compare(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), "compare");
    return Orvane(arguments);
  }
};

constexpr char kLetter[] =
    "orvane: b.htr: warning: A value is not a number: \"1O\" (line 22, column 3). 1 is taken. "
    "[htr-number-unreadable]\n";

TEST_F(CompareReportTest, TellsOfEachFileBesideTheComparison) {
  ProgramResult result = Compare({"a.htr", "b.htr"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error, kLetter);
  EXPECT_THAT(result.output, HasSubstr("9.000000"));
  result = Compare({"b.htr", "b.htr"});
  EXPECT_EQ(result.status, 0) << "what is told is no difference";
  EXPECT_EQ(result.error, std::string(kLetter) + kLetter);
}

TEST_F(CompareReportTest, SegmentsWithoutFramesInBothFilesAreNotCompared) {
  const std::string whole = SmallMotion();
  Write("b.htr", whole.substr(0, whole.find("[Spine]")));
  const ProgramResult result = Compare({"a.htr", "b.htr"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.output, HasSubstr("Difference of 1 segment in frames 1 to 3\n"));
}

TEST_F(CompareReportTest, JsonHasTheFindingsOfBothFiles) {
  const ProgramResult result = Compare({"a.htr", "b.htr", "--json"});
  EXPECT_EQ(result.error, kLetter);
  const json report = json::parse(result.output);
  EXPECT_EQ(report["version"], 2);
  EXPECT_THAT(report["findings_a"], IsEmpty());
  EXPECT_EQ(report["findings_b"][0]["code"], "htr-number-unreadable");
  EXPECT_EQ(report["findings_b"][0]["names"], json::array({"1O"}));
}

TEST_F(CompareReportTest, WritesTheReportsOfBothFiles) {
  EXPECT_EQ(Compare({"a.htr", "b.htr", "--report", "report.json"}).status, 1);
  json report = json::parse(Read("report.json"));
  EXPECT_EQ(report["files"][0]["file"], "a.htr");
  EXPECT_THAT(report["files"][0]["findings"], IsEmpty());
  EXPECT_EQ(report["files"][1]["findings"][0]["code"], "htr-number-unreadable");

  Write("empty.htr", "");
  EXPECT_EQ(Compare({"b.htr", "empty.htr", "--report", "report.json"}).status, 3);
  report = json::parse(Read("report.json"));
  EXPECT_EQ(report["files"].size(), 2U);
  EXPECT_EQ(report["files"][1]["findings"][0]["code"], "htr-empty");
}

TEST_F(CompareReportTest, RefusesAReportInThePlaceOfAFile) {
  for (const char* file : {"a.htr", "b.htr"}) {
    const std::string bytes = Read(file);
    EXPECT_EQ(Compare({"a.htr", "b.htr", "--report", file}).status, 2);
    EXPECT_EQ(Read(file), bytes);
  }
}

TEST_F(CompareReportTest, WithoutAReportNothingIsLookedFor) {
  const ProgramResult result = Compare({"a.htr", "b.htr", "--no-report", "--json"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error, "");
  EXPECT_THAT(json::parse(result.output)["findings_b"], IsEmpty());
}

}  // namespace
