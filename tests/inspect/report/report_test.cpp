#include "inspect/report/report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "inspect/check/trc_check.h"
#include "tests/support/trc_text.h"

namespace {

using orvane::Action;
using orvane::CheckTrc;
using orvane::FileReport;
using orvane::FindingSeverity;
using orvane::ReportedFinding;
using orvane::ReportOn;
using test::TrcText;
using testing::ElementsAre;
using testing::IsEmpty;

FileReport ReportFor(const TrcText& text, Action action) {
  return ReportOn(CheckTrc("walk.trc", text.Text()), action);
}

ReportedFinding Find(const FileReport& report, std::string_view code) {
  for (const ReportedFinding& finding : report.findings) {
    if (finding.code == code) return finding;
  }
  throw std::out_of_range(std::string(code));
}

const TrcText kCommas{.markers = {"Head"},
                      .frames = {{"1,5\t2,5\t3"}, {"1,5\t2\t3"}, {"4,5\t5,5\t7,5"}}};

TEST(Report, TellsEachCodeOnceWithItsCountAndFirstPlace) {
  const FileReport report = ReportFor(kCommas, Action::kImport);
  EXPECT_EQ(report.file, "walk.trc");
  EXPECT_EQ(report.kind, "TRC");
  ASSERT_EQ(report.findings.size(), 1U);
  const ReportedFinding& finding = report.findings.front();
  EXPECT_EQ(finding.code, "trc-number-unreadable");
  EXPECT_EQ(finding.severity, FindingSeverity::kWarning);
  EXPECT_EQ(finding.count, 6U);
  EXPECT_EQ(finding.line, 7U);
  EXPECT_EQ(finding.cause, "6 values are not numbers");
  EXPECT_EQ(finding.consequence, "What it starts with is taken, or 0.");
  EXPECT_EQ(report.Count(FindingSeverity::kWarning), 6U);
  EXPECT_EQ(report.Count(FindingSeverity::kError), 0U);
}

TEST(Report, NamesUpToThreeValuesOnce) {
  EXPECT_THAT(Find(ReportFor(kCommas, Action::kImport), "trc-number-unreadable").names,
              ElementsAre("1,5", "2,5", "4,5"));
}

TEST(Report, SpeaksOfOneFindingInTheSingular) {
  const TrcText text{.markers = {"Head"}, .frames = {{"1,5\t2\t3"}}};
  const FileReport report = ReportFor(text, Action::kImport);
  EXPECT_EQ(Find(report, "trc-number-unreadable").cause, "A value is not a number");
}

TEST(Report, JudgesByTheAction) {
  const TrcText text{.markers = {"Head", "Hand"},
                     .frames = {{"1\t2\t3", "\t\t"}, {"1\t2\t3", "1\t2\t3"}}};
  const auto looked_at = Find(ReportFor(text, Action::kInspect), "trc-marker-gaps");
  const auto imported = Find(ReportFor(text, Action::kImport), "trc-marker-gaps");
  const auto converted = Find(ReportFor(text, Action::kConvert), "trc-marker-gaps");
  EXPECT_EQ(looked_at.severity, FindingSeverity::kNote);
  EXPECT_EQ(imported.severity, FindingSeverity::kWarning);
  EXPECT_EQ(imported.consequence, "In its gaps the marker goes to the origin.");
  EXPECT_EQ(converted.severity, FindingSeverity::kNote);
  EXPECT_EQ(converted.consequence, "A gap is written as DROPOUT.");
  EXPECT_THAT(converted.names, ElementsAre("Hand"));
}

TEST(Report, PutsTheWorstFirst) {
  const TrcText text{.markers = {"Head", ""}, .frames = {{"1\t2\t3", "1\t2\tx"}}};
  const FileReport report = ReportFor(text, Action::kConvert);
  for (std::size_t at = 1; at < report.findings.size(); ++at) {
    EXPECT_GE(report.findings[at - 1].severity, report.findings[at].severity);
  }
  EXPECT_GT(report.findings.size(), 1U);
}

TEST(Report, IsEmptyForASoundFile) {
  const TrcText text{.markers = {"Head"}, .frames = {{"1\t2\t3"}}};
  for (const Action action : orvane::kAllActions) {
    EXPECT_THAT(ReportFor(text, action).findings, IsEmpty());
  }
}

}  // namespace
