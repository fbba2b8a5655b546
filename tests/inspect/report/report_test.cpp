#include "inspect/report/report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/support/checked_bytes.h"
#include "tests/support/trc_text.h"

namespace {

using orvane::Action;
using orvane::ActionOptions;
using orvane::AskedFrames;
using orvane::FileReport;
using orvane::FindingSeverity;
using orvane::ReportedFinding;
using orvane::ReportOn;
using orvane::ShownGaps;
using test::CheckedHtr;
using test::CheckedTrc;
using test::TrcText;
using testing::ElementsAre;
using testing::IsEmpty;

FileReport ReportFor(const TrcText& text, Action action) {
  return ReportOn(CheckedTrc("walk.trc", text.Text()), action);
}

ReportedFinding Find(const FileReport& report, std::string_view code) {
  for (const ReportedFinding& finding : report.findings) {
    if (finding.code == code) return finding;
  }
  throw std::out_of_range(std::string(code));
}

const TrcText kUnreadable{.markers = {"Head"},
                          .frames = {{"1x5\t2x5\t3"}, {"1x5\t2\t3"}, {"4x5\t5x5\t7x5"}}};

TEST(Report, TellsEachCodeOnceWithItsCountAndFirstPlace) {
  const FileReport report = ReportFor(kUnreadable, Action::kImport);
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

TEST(Report, TellsWhatIsTakenOfAFewValues) {
  const TrcText few{.markers = {"Head"}, .frames = {{"1x5\t2\t3"}, {"x\t2\t3"}, {"1x\t5\t7"}}};
  EXPECT_EQ(Find(ReportFor(few, Action::kImport), "trc-number-unreadable").consequence,
            "1 is taken. 0 is taken.");
}

TEST(Report, TellsOfTheKeywordsThatAreMissingAlone) {
  const auto report = ReportOn(
      CheckedHtr("walk.htr", "[Header]\nNumSegments 0\nNumFrames 1\nRotationUnits Degrees\n"),
      Action::kImport);
  EXPECT_EQ(Find(report, "htr-keyword-missing").consequence,
            "60 is taken for the rate. Millimeters are taken.");
}

TEST(Report, TakesWhatStandsBehindTheAnnouncedFramesAloneAsANote) {
  TrcText text{.markers = {"Head", "Hand"},
               .frames = {{"1\t2\t3", "1\t2\t3"}, {"4x\t5\t6", ""}, {"7x\t8\t9", ""}},
               .frame_count = 1};
  for (const Action action : {Action::kImport, Action::kApply, Action::kConvert}) {
    const FileReport report = ReportFor(text, action);
    for (const char* const code : {"trc-number-unreadable", "trc-marker-gaps"}) {
      EXPECT_EQ(Find(report, code).severity, FindingSeverity::kNote) << code;
    }
    EXPECT_EQ(Find(report, "trc-number-unreadable").count, 2U);
    EXPECT_EQ(Find(report, "trc-number-unreadable").consequence,
              "It stands behind the frames that the header announces, and does not come out.");
    EXPECT_EQ(Find(report, "trc-frame-count").severity, FindingSeverity::kWarning);
  }
  EXPECT_EQ(Find(ReportFor(text, Action::kInspect), "trc-number-unreadable").severity,
            FindingSeverity::kWarning);
  text.frame_count = 2;
  const ReportedFinding part = Find(ReportFor(text, Action::kImport), "trc-number-unreadable");
  EXPECT_EQ(part.severity, FindingSeverity::kWarning);
  EXPECT_EQ(part.count, 1U);
  EXPECT_THAT(part.names, ElementsAre("4x"));
}

TEST(Report, NamesUpToThreeValuesOnce) {
  EXPECT_THAT(Find(ReportFor(kUnreadable, Action::kImport), "trc-number-unreadable").names,
              ElementsAre("1x5", "2x5", "4x5"));
}

TEST(Report, TellsWhatAConversionDoesWhereThatIsSomethingElse) {
  TrcText text{.markers = {"Head"}, .frames = {{"1\t2\t3"}}};
  text.frame_count = 4;
  EXPECT_EQ(Find(ReportFor(text, Action::kConvert), "trc-frame-count").consequence,
            "DROPOUT is written for 3 missing frames.");
  EXPECT_EQ(Find(ReportFor(text, Action::kApply), "trc-frame-count").consequence,
            "Behind the first frame every marker goes to the origin.");
}

TEST(Report, TellsNumbersInConsequences) {
  const TrcText text{.markers = {"Head"}, .frames = {{"1\t2\t3"}, {"1\t2\t3"}}, .first_frame = 185};
  std::string bytes = text.Text();
  bytes.replace(bytes.find("\t185\t"), 5, "\t1\t");
  const auto told = [&bytes](Action action) {
    const auto found = Find(ReportOn(CheckedTrc("walk.trc", bytes), action), "trc-first-frame");
    EXPECT_EQ(found.cause, "The frames are numbered 185 to 186, and taken as 1 to 2");
    return found.consequence;
  };
  EXPECT_EQ(told(Action::kImport), "--range takes them by these numbers: 1:2 for all.");
  EXPECT_EQ(told(Action::kConvert), "They are written as 1 to 2.");
  EXPECT_EQ(told(Action::kInspect), "They are shown as 1 to 2.");
}

TEST(Report, TellsOnceOfDecimalCommas) {
  const TrcText text{.markers = {"Head"}, .frames = {{"1,5\t2,5\t3"}, {"4,5\t2\t3"}}};
  const FileReport report = ReportFor(text, Action::kImport);
  ASSERT_EQ(report.findings.size(), 1U);
  EXPECT_EQ(report.findings[0].cause, "Numbers are written with decimal commas");
  EXPECT_EQ(report.findings[0].consequence, "A number ends at the comma: 1 is taken for 1,5.");
  EXPECT_THAT(report.findings[0].names, ElementsAre("1,5"));
}

TEST(Report, SpeaksOfOneFindingInTheSingular) {
  const TrcText text{.markers = {"Head"}, .frames = {{"1x5\t2\t3"}}};
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
  EXPECT_EQ(imported.severity, FindingSeverity::kNote);
  EXPECT_EQ(imported.consequence,
            "Viewers do not see such a marker in its gaps; in the host its keys go to the origin.");
  EXPECT_EQ(converted.severity, FindingSeverity::kNote);
  EXPECT_EQ(converted.consequence, "A gap is written as DROPOUT.");
  EXPECT_THAT(converted.names, ElementsAre("Hand"));
}

TEST(Report, TellsWhatNamesMakeOfAConvertedFile) {
  const TrcText text{.markers = {"left head", ""}, .frames = {{"1\t2\t3", "1\t2\t3"}}};
  const FileReport imported = ReportFor(text, Action::kImport);
  EXPECT_EQ(Find(imported, "trc-name-with-blank").severity, FindingSeverity::kNote);
  const FileReport converted = ReportFor(text, Action::kConvert);
  const auto blank = Find(converted, "trc-name-with-blank");
  EXPECT_EQ(blank.severity, FindingSeverity::kWarning);
  EXPECT_EQ(blank.cause, "A name holds blanks");
  EXPECT_EQ(blank.consequence,
            "In $Order such a name reads as several: whoever reads it gives all names behind it to "
            "other markers.");
  EXPECT_EQ(Find(converted, "trc-name-empty").consequence,
            "Its name is missing in $Order: whoever reads it gives all names behind it to other "
            "markers.");
}

TEST(Report, PutsTheWorstFirst) {
  const TrcText text{.markers = {"Head", ""}, .frames = {{"1\t2\t3", "1\t2\tx"}}};
  const FileReport report = ReportFor(text, Action::kConvert);
  for (std::size_t at = 1; at < report.findings.size(); ++at) {
    EXPECT_GE(report.findings[at - 1].severity, report.findings[at].severity);
  }
  EXPECT_GT(report.findings.size(), 1U);
}

TEST(Report, TellsEachConsequenceOnceAndThreeAtMost) {
  const TrcText text{.markers = {"Head"},
                     .frames = {{"1\t2\t3"}, {"1\t2\t3"}},
                     .data_rate = "60",
                     .camera_rate = "60"};
  std::string bytes = text.Text();
  bytes.replace(bytes.find("\t2\t1\tmm"), 4, "\t6e9\t7e9");
  bytes.replace(bytes.find("\n1\t") + 1, 1, "8e9");
  bytes.replace(bytes.find("\n2\t") + 1, 1, "9e9");
  const ReportedFinding finding =
      Find(ReportOn(CheckedTrc("walk.trc", bytes), Action::kImport), "trc-number-out-of-range");
  EXPECT_EQ(finding.count, 4U);
  EXPECT_EQ(finding.consequence,
            "6 is taken. 7 is taken. 8 is taken; only the first of a file is used.");
}

// --- What is not asked for ---

std::string AskedAndTold(const TrcText& text, const ActionOptions& options, std::string_view code) {
  const FileReport report = ReportOn(CheckedTrc("walk.trc", text.Text()), Action::kImport, options);
  const ReportedFinding finding = Find(report, code);
  return std::string(SeverityName(finding.severity)) + ": " + finding.consequence;
}

TEST(Report, TakesARateThatIsNotAskedForAsANote) {
  const TrcText text{.markers = {"Head"}, .frames = {{"1\t2\t3"}}, .data_rate = "59.94"};
  EXPECT_EQ(AskedAndTold(text, {.own_time = false}, "trc-rate-cut"),
            "warning: 59.94 a second become 59.3 in the host: a minute lasts 60.7 s there.");
  EXPECT_EQ(AskedAndTold(text, {.rate = false}, "trc-rate-cut"),
            "note: The frame rate of the file is not asked for.");
}

// What is told of a rate when viewers are shown it, and when they go by the host's time.
struct RateInHost {
  const char* rate;
  const char* code;
  const char* in_host;
};

TEST(Report, TakesGapsByWhatViewersAreShownOfThem) {
  const TrcText text{.markers = {"Head", "Hand"}, .frames = {{"1\t2\t3", ""}, {"", ""}}};
  const struct {
    ShownGaps shown;
    std::string gaps;
    std::string never_seen;
  } rows[] = {
      {ShownGaps::kHidden,
       "note: Viewers do not see such a marker in its gaps; in the host its keys go to the origin.",
       "note: Viewers never see such a marker; in the host its keys are at the origin."},
      {ShownGaps::kHeld,
       "warning: In its gaps viewers see such a marker at its last place; in the host its keys go "
       "to the origin.",
       "warning: There is no place to hold such a marker at: a new one is not seen by viewers, and "
       "another keeps its place; in the host its keys are at the origin."},
      {ShownGaps::kAtOrigin, "warning: In its gaps such a marker goes to the origin.",
       "warning: Such a marker stays at the origin."}};
  for (const auto& [shown, gaps, never_seen] : rows) {
    EXPECT_EQ(AskedAndTold(text, {.gaps = shown}, "trc-marker-gaps"), gaps);
    EXPECT_EQ(AskedAndTold(text, {.gaps = shown}, "trc-marker-never-seen"), never_seen);
  }
}

TEST(Report, TakesARateThatTheHostDoesNotHoldByWhatViewersAreShown) {
  const RateInHost rows[] = {
      {"59.94", "trc-rate-cut", "59.94 a second become 59.3 in the host: a minute lasts 60.7 s"},
      {"119.88", "trc-rate-cut", "119.88 a second become 120 in the host: a minute lasts 59.9 s"},
      {"250", "trc-rate-inexact", "250 a second become 252.6 in the host: a minute lasts 59.4 s"},
      {"500", "trc-rate-inexact", "500 a second become 533.3 in the host: a minute lasts 56.2 s"},
      {"1000", "trc-rate-inexact", "1000 a second become 1200 in the host: a minute lasts 50 s"},
      {"11", "trc-rate-inexact", "11 a second become 11.01 in the host: a minute lasts 59.95 s"}};
  for (const auto& [rate, code, in_host] : rows) {
    const TrcText text{.markers = {"Head"}, .frames = {{"1\t2\t3"}}, .data_rate = rate};
    const std::string effect = std::string(in_host) + " there.";
    EXPECT_EQ(AskedAndTold(text, {}, code),
              "note: " + effect + " Viewers play the rate of the file.");
    EXPECT_EQ(AskedAndTold(text, {.own_time = true}, code),
              "note: " + effect + " Viewers play the rate of the file.");
    EXPECT_EQ(AskedAndTold(text, {.own_time = false}, code), "warning: " + effect);
    EXPECT_EQ(AskedAndTold(text, {.rate = false, .own_time = false}, code),
              "note: The frame rate of the file is not asked for.");
    const FileReport applied = ReportOn(CheckedTrc("walk.trc", text.Text()), Action::kApply);
    EXPECT_EQ(Find(applied, code).severity, FindingSeverity::kWarning);
    EXPECT_EQ(Find(applied, code).consequence, effect);
  }
}

TEST(Report, SaysNothingOfARateThatTheHostHolds) {
  for (const char* rate : {"1", "60", "120", "240.0", "4800"}) {
    const TrcText text{.markers = {"Head"}, .frames = {{"1\t2\t3"}}, .data_rate = rate};
    EXPECT_TRUE(ReportFor(text, Action::kImport).findings.empty()) << rate;
  }
}

TEST(Report, TakesFramesByThoseThatAreAskedFor) {
  TrcText text{.markers = {"Head"}, .frames = {{"1\t2\t3"}}};
  text.frame_count = 2;
  const std::string missing = "warning: Behind the first frame every marker goes to the origin.";
  EXPECT_EQ(AskedAndTold(text, {}, "trc-frame-count"), missing);
  EXPECT_EQ(AskedAndTold(text, {.frames = AskedFrames::kMissing}, "trc-frame-count"),
            missing + " --range FROM:TO leaves them out.");
  EXPECT_EQ(AskedAndTold(text, {.frames = AskedFrames::kHeld}, "trc-frame-count"),
            "note: Only frames that are there are asked for.");
}

TEST(Report, TakesFarTooManyFramesByThoseThatAreAskedFor) {
  TrcText text{.markers = {"Head"}, .frames = {{"1\t2\t3"}}};
  text.frame_count = 2'000'000'000;
  EXPECT_EQ(AskedAndTold(text, {}, "trc-frames-too-many"),
            "error: It is refused; --range FROM:TO takes a part of them.");
  EXPECT_EQ(AskedAndTold(text, {.frames = AskedFrames::kMissing}, "trc-frames-too-many"),
            "warning: Frames that are not there are made up. --range FROM:TO leaves them out.");
  EXPECT_EQ(AskedAndTold(text, {.frames = AskedFrames::kHeld}, "trc-frames-too-many"),
            "note: Only frames that are there are asked for.");
}

// --- Motion files ---

FileReport MotionReport(const std::string& text) {
  return ReportOn(CheckedHtr("walk.htr", text), Action::kImport);
}

TEST(Report, NamesKeywordsWithoutTheirQuotationMarks) {
  const FileReport report = MotionReport(
      "[Header]\nNumSegments 0\nNumSegments 0\nNumFrames 1\n"
      "NumFrames 1\n");
  EXPECT_THAT(Find(report, "htr-keyword-missing").names,
              ElementsAre("DataFrameRate", "CalibrationUnits", "RotationUnits"));
  EXPECT_EQ(Find(report, "htr-keyword-missing").cause, "3 keywords are missing from the header");
  EXPECT_THAT(Find(report, "htr-keyword-repeated").names, ElementsAre("NumSegments", "NumFrames"));
  EXPECT_THAT(Find(report, "htr-segments-missing").names, IsEmpty());
}

TEST(Report, IsEmptyForASoundFile) {
  const TrcText text{.markers = {"Head"}, .frames = {{"1\t2\t3"}}};
  for (const Action action : orvane::kAllActions) {
    EXPECT_THAT(ReportFor(text, action).findings, IsEmpty());
  }
}

}  // namespace
