#include <nlohmann/json.hpp>
#include <ostream>

#include "tests/cli/orvane_test.h"

namespace {

using nlohmann::json;
using test::ProgramResult;
using test::Replaced;
using test::SmallMotion;
using testing::ElementsAreArray;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;

// One damage of the small motion, and all that is said of it: line, column, severity and code.
struct Damage {
  std::string behaviour;
  std::string from;
  std::string to;
  std::vector<std::string> findings;
};

std::ostream& operator<<(std::ostream& out, const Damage& damage) {
  return out << damage.behaviour;
}

class CheckedDamageTest : public test::OrvaneTest, public testing::WithParamInterface<Damage> {};

TEST_P(CheckedDamageTest, IsNamedByPlaceAndCode) {
  Write("walk.htr", Replaced(SmallMotion(), GetParam().from, GetParam().to));
  const ProgramResult result = Orvane({"check", "walk.htr", "--json"});
  const json report = json::parse(result.output);
  std::vector<std::string> findings;
  for (const json& finding : report["files"][0]["findings"]) {
    findings.push_back(std::to_string(finding["line"].get<int>()) + ":" +
                       std::to_string(finding["column"].get<int>()) + " " +
                       finding["severity"].get<std::string>() + " " +
                       finding["code"].get<std::string>());
  }
  EXPECT_THAT(findings, ElementsAreArray(GetParam().findings));
}

// Lines of the small motion: 1 [Header], 5 NumSegments, 6 NumFrames, 7 DataFrameRate, 14
// [SegmentNames&Hierarchy], 17 [BasePosition], 20 [Hips], 24 [Spine], 28 [EndOfFile].
INSTANTIATE_TEST_SUITE_P(
    Lines, CheckedDamageTest,
    testing::Values(
        Damage{"ByteOrderMark",
               "[Header]\nFileType HTR",
               "\xEF\xBB\xBF\n[Header]\nFileType HTR",
               {"1:1 note htr-byte-order-mark"}},
        Damage{
            "Nul", "FileVersion 1", std::string("FileVersion 1\0 x", 16), {"4:14 warning htr-nul"}},
        Damage{"LongLine",
               "Hips 0 900",
               "Hips" + std::string(10235, ' ') + "Spine 0 900",
               {"5:13 error htr-segment-count", "18:10240 warning htr-number-missing",
                "18:10240 warning htr-number-missing", "18:10240 warning htr-number-missing",
                "18:10240 warning htr-number-missing", "18:10240 warning htr-number-missing",
                "18:10240 warning htr-number-missing", "18:10240 warning htr-number-missing",
                "18:10240 warning htr-line-cut", "19:1 warning htr-base-line-repeated"}},
        Damage{"CarriageReturn",
               "CalibrationUnits mm\nRotationUnits Degrees",
               "CalibrationUnits mm\rRotationUnits Degrees",
               {"1:2 warning htr-keyword-missing", "9:18 note htr-value-extra",
                "9:20 warning htr-carriage-return", "9:35 warning htr-length-unit-unknown"}},
        Damage{
            "CommentInWord", "Spine Hips", "Spine Hips#2", {"16:11 warning htr-comment-in-word"}},
        Damage{"LineBeforeTheFirstSection",
               "[Header]",
               " take 7\n[Header]",
               {"1:1 warning htr-line-before-section"}},
        Damage{"LinesBehindTheEnd",
               "[EndOfFile]\n",
               "[EndOfFile]\n\n# fine\n more\nmore\n",
               {"31:2 warning htr-after-end"}},
        Damage{"NoEnd", "[EndOfFile]\n", "", {"28:1 note htr-end-missing"}},
        Damage{"ExtraCell",
               "2 10 0 0 0 0 90 1",
               "2 10 0 0 0 0 90 1 5",
               {"22:19 warning htr-numbers-extra"}}));

INSTANTIATE_TEST_SUITE_P(
    Sections, CheckedDamageTest,
    testing::Values(
        Damage{"Indented",
               "[Spine]",
               " [Spine]",
               {"16:1 warning htr-motion-missing", "20:2 warning htr-frame-count",
                "24:2 warning htr-section-indented", "24:2 warning htr-number-unreadable",
                "24:9 warning htr-number-missing", "24:9 warning htr-number-missing",
                "24:9 warning htr-number-missing", "24:9 warning htr-number-missing",
                "24:9 warning htr-number-missing", "24:9 warning htr-number-missing",
                "24:9 warning htr-number-missing", "25:1 warning htr-frame-number"}},
        Damage{"Unclosed", "[Spine]", "[Spine", {"24:2 note htr-section-unclosed"}},
        Damage{"TextBehindTheName", "[Spine]", "[Spine]] x", {"24:8 warning htr-section-text"}},
        Damage{"MisspeltEnd",
               "[EndOfFile]",
               "[EndOFFile]",
               {"28:2 warning htr-section-misspelt", "29:1 note htr-end-missing"}},
        Damage{"MisspeltBasePosition",
               "[BasePosition]",
               "[Baseposition]",
               {"5:13 error htr-segment-count", "17:2 warning htr-section-misspelt",
                "20:2 error htr-base-missing"}},
        Damage{"UnknownSegment",
               "[Spine]",
               "[Tail]",
               {"16:1 warning htr-motion-missing", "24:2 warning htr-section-unknown"}}));

INSTANTIATE_TEST_SUITE_P(
    Header, CheckedDamageTest,
    testing::Values(
        Damage{"Misspelt",
               "[Header]",
               "[header]",
               {"1:1 warning htr-header-missing", "1:1 error htr-frames-unannounced",
                "1:2 warning htr-section-misspelt", "17:2 warning htr-hierarchy-count",
                "28:12 error htr-segment-count"}},
        Damage{"Late",
               "[Hips]",
               "[Header]\nRotationUnits Radians\n[Hips]",
               {"20:2 warning htr-header-late", "21:1 warning htr-keyword-repeated"}},
        Damage{"MisspeltKeyword",
               "DataFrameRate 60",
               "DataframeRate 60",
               {"1:2 warning htr-keyword-missing", "7:1 warning htr-keyword-misspelt"}},
        Damage{"UnknownKeyword",
               "NumFrames 3",
               "Studio 5\nNumFrames 3",
               {"6:1 note htr-keyword-unknown"}},
        Damage{"RepeatedKeyword",
               "NumFrames 3",
               "NumFrames 9\nNumFrames 3",
               {"7:1 warning htr-keyword-repeated"}},
        Damage{"MissingKeyword", "CalibrationUnits mm\n", "", {"1:2 warning htr-keyword-missing"}},
        Damage{"KeywordThatIsNotNeeded", "FileType HTR\n", "", {"1:2 note htr-keyword-left-out"}},
        Damage{"TwoValues", "FileType HTR", "FileType or HTR", {"2:10 note htr-value-extra"}},
        Damage{"RefusedValue", "FileType HTR", "FileType trc", {"2:10 error htr-value-refused"}},
        Damage{"GravityAlongX",
               "GlobalAxisofGravity Y",
               "GlobalAxisofGravity x",
               {"11:21 error htr-value-refused"}},
        Damage{"LengthUnit",
               "CalibrationUnits mm",
               "CalibrationUnits Mm",
               {"9:18 warning htr-length-unit-unknown"}},
        Damage{"GravityAlongZ",
               "GlobalAxisofGravity Y",
               "GlobalAxisofGravity z",
               {"11:21 warning htr-axis-ignored"}},
        Damage{"AngleUnit",
               "RotationUnits Degrees",
               "RotationUnits RADIAN",
               {"10:15 warning htr-angle-unit-unknown"}},
        Damage{"Axis",
               "GlobalAxisofGravity Y",
               "GlobalAxisofGravity Q",
               {"11:21 warning htr-axis-unknown"}},
        Damage{"RateWithFraction",
               "DataFrameRate 60",
               "DataFrameRate 59.94",
               {"7:15 warning htr-rate-cut"}},
        Damage{"RateZero",
               "DataFrameRate 60",
               "DataFrameRate 0",
               {"7:15 warning htr-rate-out-of-range"}},
        Damage{"RateAboveTheScene",
               "DataFrameRate 60",
               "DataFrameRate 4801",
               {"7:15 warning htr-rate-out-of-range"}},
        Damage{"HighestRate", "DataFrameRate 60", "DataFrameRate 4800", {}},
        Damage{"ScaleFactor",
               "ScaleFactor 1.0",
               "ScaleFactor 0.999",
               {"13:13 warning htr-scale-factor"}}));

INSTANTIATE_TEST_SUITE_P(
    Numbers, CheckedDamageTest,
    testing::Values(
        Damage{"MissingCell",
               "2 10 0 0 0 0 90 1",
               "2 10 0 0 0 0 90",
               {"22:16 warning htr-number-missing"}},
        Damage{"Word",
               "2 10 0 0 0 0 90 1",
               "2 10 0 nan 0 0 90 1",
               {"22:8 warning htr-number-unreadable"}},
        Damage{"UnitBehind", "250.5", "250.5mm", {"19:21 warning htr-number-unreadable"}},
        Damage{"FractionOfAFrame", "NumFrames 3", "NumFrames 3.5", {"6:11 warning htr-number-cut"}},
        Damage{"FewerThanNoFrames",
               "NumFrames 3",
               "NumFrames -3",
               {"6:11 warning htr-number-out-of-range", "6:11 error htr-frames-unannounced"}},
        Damage{"NoFrames", "NumFrames 3", "NumFrames 0", {"6:11 error htr-frames-unannounced"}},
        Damage{"FramesInWords",
               "NumFrames 3",
               "NumFrames three",
               {"6:11 warning htr-number-unreadable", "6:11 error htr-frames-unannounced"}},
        Damage{"FrameCountWithoutAValue",
               "NumFrames 3",
               "NumFrames",
               {"6:10 warning htr-number-missing", "6:10 error htr-frames-unannounced"}},
        Damage{"NoFrameCount",
               "NumFrames 3\n",
               "",
               {"1:2 warning htr-keyword-missing", "1:2 error htr-frames-unannounced"}},
        Damage{"TooLarge", "2 10 0", "2 -1e999 0", {"22:3 warning htr-number-infinite"}}));

INSTANTIATE_TEST_SUITE_P(
    Hierarchy, CheckedDamageTest,
    testing::Values(
        Damage{"RepeatedName", "Spine Hips", "Hips Hips", {"16:1 error htr-name-taken"}},
        Damage{"NameOfTwoWords", "Spine Hips", "Spine of Hips", {"16:7 warning htr-name-in-words"}},
        Damage{"UnknownParent", "Spine Hips", "Spine Hip", {"16:7 warning htr-parent-unknown"}},
        Damage{"MissingParent", "Spine Hips", "Spine", {"16:6 warning htr-parent-unknown"}},
        Damage{"Circle", "Spine Hips", "Spine Spine", {"16:7 warning htr-parent-circle"}},
        Damage{"NoRoot",
               "Hips GLOBAL",
               "Hips Spine",
               {"14:2 error htr-root-missing", "15:6 warning htr-parent-circle"}},
        Damage{"SecondRoot", "Spine Hips", "Spine GLOBAL", {"16:1 warning htr-root-second"}},
        Damage{"SegmentBehindTheBasePosition",
               "[Hips]",
               "[SegmentNames&Hierarchy]\nTail Hips\n[Hips]",
               {"21:1 warning htr-base-line-missing", "21:1 warning htr-motion-missing",
                "21:1 warning htr-segment-unlinked"}}));

INSTANTIATE_TEST_SUITE_P(
    BasePosition, CheckedDamageTest,
    testing::Values(
        Damage{"Missing",
               "[BasePosition]\nHips 0 900 0 0 0 0 100\nSpine 0 100 0 0 0 0 250.5\n",
               "",
               {"5:13 error htr-segment-count", "17:2 error htr-base-missing"}},
        Damage{"Repeated", "[Hips]", "[BasePosition]\n[Hips]", {"20:2 warning htr-base-repeated"}},
        Damage{"UnknownName", "Spine 0 100", "Spin 0 100", {"19:1 error htr-base-name-unknown"}},
        Damage{"RepeatedLine",
               "Spine 0 100",
               "Hips 0 100",
               {"16:1 warning htr-base-line-missing", "19:1 warning htr-base-line-repeated"}}));

INSTANTIATE_TEST_SUITE_P(
    Counts, CheckedDamageTest,
    testing::Values(
        Damage{"Segments",
               "NumSegments 2",
               "NumSegments 3",
               {"5:13 warning htr-hierarchy-count", "5:13 error htr-segment-count"}},
        Damage{"FramesMissing", "3 20 0 0 0 0 0 1\n", "", {"20:2 warning htr-frame-count"}},
        Damage{"TooManyAnnounced",
               "NumFrames 3",
               "NumFrames 100001",
               {"6:11 error htr-frames-too-many"}},
        Damage{"ManyAnnounced",
               "NumFrames 3",
               "NumFrames 100000",
               {"20:2 warning htr-frame-count", "24:2 warning htr-frame-count"}},
        Damage{"FrameNumbersThatDoNotFollow",
               "2 10 0 0 0 0 90 1",
               "7 10 0 0 0 0 90 1",
               {"22:1 warning htr-frame-number", "23:1 warning htr-frame-number"}},
        Damage{"SegmentThatStartsElsewhere",
               "[Spine]\n1 ",
               "[Spine]\n0 ",
               {"25:1 warning htr-frame-number", "26:1 warning htr-frame-number"}},
        Damage{"MotionTwice",
               "[EndOfFile]",
               "[Hips]\n9 0 0 0 0 0 0 1\n[EndOfFile]",
               {"28:2 warning htr-motion-repeated", "28:2 warning htr-frame-count"}},
        Damage{"MotionInTwoParts",
               "3 20 0 0 0 0 0 1\n[Spine]",
               "[Hips]\n3 20 0 0 0 0 0 1\n[Spine]",
               {"23:2 warning htr-motion-repeated"}},
        Damage{"FrameCountThatALaterHeaderChanges",
               "[EndOfFile]",
               "[Header]\nNumFrames 2\n[EndOfFile]",
               {"20:2 warning htr-frame-count", "24:2 warning htr-frame-count",
                "28:2 warning htr-header-late", "29:1 warning htr-keyword-repeated"}}));

class UnusableNameTest : public test::OrvaneTest,
                         public testing::WithParamInterface<std::string> {};

TEST_P(UnusableNameTest, IsAWarning) {
  Write("walk.htr", Replaced(SmallMotion(), "Spine Hips", GetParam() + " Hips"));
  EXPECT_THAT(Orvane({"check", "walk.htr"}).output,
              HasSubstr("walk.htr:16:1: warning: found \"" + GetParam() +
                        "\", expected a name that can be read back"));
}

INSTANTIATE_TEST_SUITE_P(All, UnusableNameTest,
                         testing::Values("Spi]ne", "Header", "BasePosition",
                                         "SegmentNames&Hierarchy", "endoffile", "GLOBAL"));

class CheckTest : public test::OrvaneTest {
 protected:
  CheckTest() {
    Write("walk.htr", SmallMotion());
    Write("note.htr", Replaced(SmallMotion(), "[EndOfFile]\n", ""));
    Write("warning.htr", Replaced(SmallMotion(), "DataFrameRate 60", "DataFrameRate 59.94"));
    Write("error.htr", Replaced(SmallMotion(), "FileVersion 1", "FileVersion 2"));
  }
};

TEST_F(CheckTest, ACleanFileIsOneLine) {
  const ProgramResult result = Orvane({"check", "walk.htr"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output, "walk.htr: clean: 2 segments, 3 frames\n");
  EXPECT_THAT(result.error, IsEmpty());
}

TEST_F(CheckTest, AFindingTellsWhatTheImportMakesOfIt) {
  const ProgramResult result = Orvane({"check", "warning.htr"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.output,
            "warning.htr:7:15: warning: found \"59.94\", expected a whole number for DataFrameRate "
            "[htr-rate-cut]\n"
            "  59 is taken: a minute lasts 60.96 s.\n"
            "warning.htr: 1 warning\n");
}

TEST_F(CheckTest, ARefusalSaysThatTheRestIsNotRead) {
  EXPECT_EQ(Orvane({"check", "error.htr"}).output,
            "error.htr:4:13: error: found \"2\", expected 1 for FileVersion [htr-value-refused]\n"
            "  The import refuses the file; the rest of it is not checked.\n"
            "error.htr: 1 error\n");
}

struct Verdict {
  const char* file;
  const char* max_severity;
  int status;
};

TEST_F(CheckTest, TheWorstFindingThatIsToleratedCanBeChosen) {
  for (const Verdict& verdict :
       {Verdict{"walk.htr", "note", 0}, Verdict{"note.htr", "note", 0},
        Verdict{"warning.htr", "note", 1}, Verdict{"warning.htr", "warning", 0},
        Verdict{"error.htr", "warning", 1}, Verdict{"error.htr", "error", 0}}) {
    const ProgramResult result =
        Orvane({"check", verdict.file, "--max-severity", verdict.max_severity});
    EXPECT_EQ(result.status, verdict.status) << verdict.file << " " << verdict.max_severity;
  }
}

TEST_F(CheckTest, SeveralFilesAreCheckedAndTheWorstCounts) {
  const ProgramResult result = Orvane({"check", "walk.htr", "warning.htr", "note.htr"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.output, EndsWith("\n1 of 3 files has warnings, 1 has notes, 1 is clean\n"));
}

TEST_F(CheckTest, AFileThatCannotBeReadKeepsNoOtherFromBeingChecked) {
  const ProgramResult result = Orvane({"check", "nowhere.htr", "warning.htr"});
  EXPECT_EQ(result.status, 3);
  EXPECT_THAT(result.output, HasSubstr("1 of 2 files has warnings, 1 could not be checked\n"));
  EXPECT_EQ(result.error, "orvane: nowhere.htr: No such file or directory\n");
}

TEST_F(CheckTest, AFolderStandsForTheFilesInItInTheOrderOfTheirNames) {
  std::filesystem::create_directories(folder_.Path() / "take" / "deeper.htr");
  for (const char* name : {"b.htr", "a.HTR", "notes.txt", "deeper.htr/c.htr", ".htr"}) {
    Write(std::string("take/") + name, SmallMotion());
  }
  Write("take.htr", "");
  const ProgramResult result = Orvane({"check", "--verbose", "warning.htr", "take", "walk.htr"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(test::Slashed(result.output), EndsWith("warning.htr: 1 warning\n"
                                                     "take/a.HTR: clean: 2 segments, 3 frames\n"
                                                     "take/b.htr: clean: 2 segments, 3 frames\n"
                                                     "walk.htr: clean: 2 segments, 3 frames\n"));
  EXPECT_EQ(test::Slashed(Orvane({"check", "--verbose", "take/"}).output),
            "take/a.HTR: clean: 2 segments, 3 frames\n"
            "take/b.htr: clean: 2 segments, 3 frames\n");
}

TEST_F(CheckTest, AFolderWithNothingToCheckIsSaidToBeOne) {
  std::filesystem::create_directories(folder_.Path() / "take");
  Write("take/notes.txt", SmallMotion());
  const ProgramResult result = Orvane({"check", "take", "walk.htr"});
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.output, "walk.htr: clean: 2 segments, 3 frames\n");
  EXPECT_EQ(result.error,
            "orvane: take: The folder holds no file to check\n"
            "  Of a folder, files are checked whose names end in .htr, .trc or .mnm.\n");
}

TEST_F(CheckTest, JsonHasTheDocumentedFields) {
  const ProgramResult result = Orvane({"check", "--json", "warning.htr", "walk.htr"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(json::parse(result.output), json::parse(R"({
    "version": 1,
    "files": [
      {"file": "warning.htr", "file_type": "HTR", "errors": 0, "warnings": 1, "notes": 0,
       "totals": {"htr-rate-cut": 1},
       "findings": [
         {"line": 7, "column": 15, "code": "htr-rate-cut", "severity": "warning",
          "found": "\"59.94\"", "expected": "a whole number for DataFrameRate",
          "effect": "59 is taken: a minute lasts 60.96 s."}]},
      {"file": "walk.htr", "file_type": "HTR", "errors": 0, "warnings": 0, "notes": 0,
       "totals": {}, "findings": []}
    ]})"));
}

TEST_F(CheckTest, TheSameOverAndOverIsCounted) {
  std::string lines;
  for (int line = 0; line < 1000; ++line) lines += "Studio 5\n";
  Write("many.htr", Replaced(SmallMotion(), "NumFrames 3\n", "NumFrames 3\n" + lines));
  const ProgramResult result = Orvane({"check", "many.htr"});
  EXPECT_THAT(result.output, HasSubstr("many.htr:26:1: note: found \"Studio\""));
  EXPECT_THAT(result.output, testing::Not(HasSubstr("many.htr:27:1:")));
  EXPECT_THAT(result.output, HasSubstr("\nmany.htr: and 980 more of [htr-keyword-unknown]\n"
                                       "many.htr: 1000 notes\n"));
  const json file = json::parse(Orvane({"check", "many.htr", "--json"}).output)["files"][0];
  EXPECT_EQ(file["findings"].size(), 20U);
  EXPECT_EQ(file["totals"], json({{"htr-keyword-unknown", 1000}}));
}

TEST_F(CheckTest, NoFileCanSteerATerminal) {
  Write("walk.htr", Replaced(SmallMotion(), "Spine Hips", "Spine \x1b[31m"));
  const ProgramResult result = Orvane({"check", "walk.htr"});
  EXPECT_THAT(result.output, HasSubstr("found \"\\x1b[31m\""));
  EXPECT_EQ(result.output.find('\x1b'), std::string::npos);
}

TEST_F(CheckTest, ASkippedSectionTellsHowMuchIsLostAndWhatWasLikelyMeant) {
  Write("walk.htr", Replaced(SmallMotion(), "[Spine]", "[spine]"));
  EXPECT_THAT(Orvane({"check", "walk.htr"}).output,
              HasSubstr("found \"spine\", expected \"Spine\" [htr-section-unknown]\n  It is taken "
                        "for the motion of an unknown segment: 3 lines skipped.\n"));
}

TEST_F(CheckTest, AnEmptyFileIsNoMotionFile) {
  Write("empty.htr", "");
  EXPECT_EQ(Orvane({"check", "empty.htr"}).output,
            "empty.htr:1:1: error: found an empty file, expected text [htr-empty]\n"
            "  The import refuses the file; what else is odd about it is not told.\n"
            "empty.htr: 1 error\n");
}

}  // namespace
