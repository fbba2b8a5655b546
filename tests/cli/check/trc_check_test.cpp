#include <gmock/gmock.h>

#include <nlohmann/json.hpp>
#include <ostream>

#include "tests/cli/orvane_test.h"
#include "tests/support/trc_text.h"

namespace {

using nlohmann::json;
using test::ProgramResult;
using test::Replaced;
using test::TrcText;
using testing::ElementsAreArray;
using testing::HasSubstr;
using namespace std::string_literals;

TrcText TwoMarkers() {
  return {.markers = {"LFHD", "RFHD"},
          .frames = {{"1\t2\t3", "4\t5\t6"}, {"1\t2\t3", "4\t5\t6"}, {"7\t8\t9", "4\t5\t6"}}};
}

// One damage of a file of two markers, and all that is said of it: line, column, severity and code.
struct Damage {
  std::string behaviour;
  std::string from;
  std::string to;
  std::vector<std::string> findings;
};

std::ostream& operator<<(std::ostream& out, const Damage& damage) {
  return out << damage.behaviour;
}

class DamagedMarkersTest : public test::OrvaneTest, public testing::WithParamInterface<Damage> {};

TEST_P(DamagedMarkersTest, IsNamedByPlaceAndCode) {
  Write("walk.trc", Replaced(TwoMarkers().Text(), GetParam().from, GetParam().to));
  const json report = json::parse(Orvane({"check", "walk.trc", "--json"}).output);
  EXPECT_EQ(report["version"], 1);
  EXPECT_EQ(report["files"][0]["file_type"], "TRC");
  std::vector<std::string> findings;
  for (const json& finding : report["files"][0]["findings"]) {
    findings.push_back(std::to_string(finding["line"].get<int>()) + ":" +
                       std::to_string(finding["column"].get<int>()) + " " +
                       finding["severity"].get<std::string>() + " " +
                       finding["code"].get<std::string>());
  }
  EXPECT_THAT(findings, ElementsAreArray(GetParam().findings));
}

// Lines: 3 the header values, 4 the names, 5 the headings, 7 to 9 the frames.
INSTANTIATE_TEST_SUITE_P(
    All, DamagedMarkersTest,
    testing::Values(
        Damage{"ByteOrderMark",
               "PathFileType",
               "\xEF\xBB\xBFPathFileType",
               {"1:1 note trc-byte-order-mark"}},
        Damage{"BlanksForTabs",
               "PathFileType\t4\t(X/Y/Z)\ttest.trc",
               "PathFileType 4 (X/Y/Z) test.trc",
               {"1:1 error trc-tabs-missing"}},
        Damage{"OtherCoordinates", "(X/Y/Z)", "(x/y/z)", {"1:16 error trc-coordinates-refused"}},
        Damage{"CommentAtTheStart",
               "PathFileType",
               "#made by hand\nPathFileType",
               {"1:1 warning trc-comment", "1:1 error trc-tabs-missing"}},
        Damage{"HeaderValues",
               "60\t60\t3\t2\tmm\t60\t1",
               "59.94\t0\t4\t3\tMM \t60\t7",
               {"3:1 warning trc-rate-cut", "3:7 note trc-camera-rate",
                "3:9 warning trc-frame-count", "3:11 warning trc-marker-count",
                "3:13 note trc-unit-blanks", "7:1 warning trc-first-frame"}},
        Damage{"NoFrames", "60\t3\t2", "60\t0\t2", {"3:7 error trc-frames-unannounced"}},
        Damage{"FewerThanNoFrames", "60\t3\t2", "60\t-3\t2", {"3:7 error trc-frames-unannounced"}},
        Damage{"NoFrameCount",
               "60\t3\t2",
               "60\t\t2",
               {"3:7 warning trc-number-missing", "3:7 error trc-frames-unannounced"}},
        Damage{"UnitAtTheEnd",
               "mm\t60\t1\t3",
               "mm",
               {"3:11 warning trc-unit-ends-line", "3:13 warning trc-number-missing",
                "7:1 warning trc-first-frame"}},
        Damage{"LastNameLost",
               "RFHD\t\t\t",
               "RFHD",
               {"3:9 warning trc-marker-count", "4:20 warning trc-name-lost",
                "7:15 warning trc-value-extra", "8:15 warning trc-value-extra",
                "9:15 warning trc-value-extra"}},
        Damage{"RepeatedName",
               "RFHD",
               "LFHD",
               {"3:9 warning trc-marker-count", "4:20 warning trc-column-repeated",
                "7:15 warning trc-value-extra", "8:15 warning trc-value-extra",
                "9:15 warning trc-value-extra"}},
        Damage{"RepeatedEmptyName",
               "LFHD\t\t\tRFHD",
               "\t\t\t",
               {"3:9 warning trc-marker-count", "4:13 warning trc-name-empty",
                "4:16 warning trc-column-repeated", "7:15 warning trc-value-extra",
                "8:15 warning trc-value-extra", "9:15 warning trc-value-extra"}},
        Damage{"UnnamedColumn",
               "LFHD",
               "Unnamed",
               {"3:9 warning trc-marker-count", "4:13 warning trc-column-unnamed",
                "7:15 warning trc-value-extra", "8:15 warning trc-value-extra",
                "9:15 warning trc-value-extra"}},
        Damage{"NoSubHeader",
               "\t\tX1\tY1\tZ1\tX2\tY2\tZ2\n\n",
               "",
               {"3:7 warning trc-frame-count", "5:1 warning trc-sub-header-missing",
                "6:1 warning trc-first-frame"}},
        Damage{"CellsThatAreNoNumbers",
               "7\t8\t9",
               "NaN\t\t9mm",
               {"9:9 warning trc-number-unreadable", "9:13 warning trc-number-missing",
                "9:14 warning trc-number-unreadable"}},
        Damage{"NumberTooLargeForAScene",
               "7\t8\t9",
               "7\t1e39\t9",
               {"9:11 warning trc-number-infinite"}},
        Damage{"FrameNumberWithoutUse",
               "3\t0.000",
               "5.5\t0.000",
               {"9:1 warning trc-number-cut", "9:1 warning trc-frame-number"}},
        Damage{"BlankFrame",
               "3\t0.000\t7\t8\t9\t4\t5\t6",
               "",
               {"9:1 warning trc-frame-blank", "9:1 note trc-marker-gaps",
                "9:1 note trc-marker-gaps"}},
        Damage{"NoLineEnd",
               "7\t8\t9\t4\t5\t6\n",
               "7\t8\t9\t4\t5\t6",
               {"9:20 note trc-end-unfinished"}},
        Damage{
            "NulInAFrame",
            "7\t8\t9\t4",
            "7\t8\t9\0\t4"s,
            {"9:1 note trc-marker-gaps", "9:14 warning trc-nul", "9:14 warning trc-frame-short"}},
        Damage{"GapInALaterPiece",
               "1\t0.000\t1\t2\t3\t4\t5\t6\n2\t0.000\t1\t2\t3",
               "1\t0.000\t1\t2\t3\t4\t5\t6" + std::string(10220, '\t') + "2\t0.000\t\t\t",
               {"7:10240 warning trc-line-cut", "7:10240 note trc-marker-gaps"}},
        Damage{"Gap", "7\t8\t9", "\t\t", {"9:1 note trc-marker-gaps"}}),
    [](const auto& each) { return each.param.behaviour; });

class TrcCheckTest : public test::OrvaneTest {};

TEST_F(TrcCheckTest, AFileWithoutFindingsIsOneLine) {
  Write("walk.trc", TwoMarkers().Text());
  const ProgramResult result = Orvane({"check", "walk"});
  EXPECT_EQ(result.status, 3) << "the reader looks for walk.TRC, by its name an HTR file";
  TrcText text = TwoMarkers();
  text.line_end = "\r\n";
  Write("take.TRC", text.Text());
  EXPECT_EQ(Orvane({"check", "--verbose", "walk.trc", "take.TRC"}).output,
            "walk.trc: clean: 2 markers, 3 frames\ntake.TRC: clean: 2 markers, 3 frames\n");
  EXPECT_EQ(Orvane({"check", "take", "--as", "trc"}).output,
            "take.TRC: clean: 2 markers, 3 frames\n");
}

TEST_F(TrcCheckTest, SpareCarriageReturnsAreToldOnce) {
  TrcText text = TwoMarkers();
  text.line_end = "\r\r\n";
  Write("walk.trc", text.Text());
  const ProgramResult result = Orvane({"check", "walk.trc"});
  EXPECT_EQ(result.output,
            "walk.trc:1:32: note: found several carriage returns before LF, expected LF or CR LF "
            "where lines end [trc-carriage-return-spare]\n"
            "  They are ignored, here and on all other lines.\n"
            "walk.trc: 1 note\n");
  EXPECT_EQ(result.status, 0);
}

TEST_F(TrcCheckTest, TellsWhatTheImportMakesOfIt) {
  TrcText text = TwoMarkers();
  text.data_rate = "59.94";
  text.frame_count = 900;
  text.marker_count = 3;
  text.frames[0] = {"", "4\t5\t6"};
  text.frames[2] = {"", "4,5\t5\t6"};
  Write("walk.trc", text.Text());
  EXPECT_EQ(
      Orvane({"check", "walk.trc"}).output,
      "walk.trc:3:1: warning: found \"59.94\", expected a whole number [trc-rate-cut]\n"
      "  59 is taken: a minute lasts 60.96 s.\n"
      "walk.trc:3:10: warning: found 900, as NumFrames says, expected 3, as many as there "
      "are [trc-frame-count]\n"
      "  Behind the first 3 frames every marker goes to the origin.\n"
      "walk.trc:3:14: warning: found 2 markers, expected 3, as NumMarkers says "
      "[trc-marker-count]\n"
      "  The import takes the markers that are there.\n"
      "walk.trc:7:1: note: found no position of \"LFHD\" in 2 frames: 2 gaps, the longest of "
      "1 frame from line 7 on, expected one in every frame [trc-marker-gaps]\n"
      "  The import sets those frames to the origin; a converted file has dropouts.\n"
      "walk.trc:9:12: warning: found \"4,5\" in 1 cell, expected a point in numbers, no comma "
      "[trc-decimal-commas]\n"
      "  A number ends at the comma: 4 is taken for 4,5.\n"
      "walk.trc: 4 warnings, 1 note\n");
}

TEST_F(TrcCheckTest, TextIsQuotedAsItStands) {
  Write("walk.trc", Replaced(TwoMarkers().Text(), "2\t0.000", " 7\t0.000"));
  EXPECT_THAT(Orvane({"check", "walk.trc"}).output,
              HasSubstr("8:1: warning: found \" 7\", expected the number behind that"));
}

TEST_F(TrcCheckTest, AnInfiniteNumberIsToldToKeepASceneFromBeingSaved) {
  Write("walk.trc", Replaced(TwoMarkers().Text(), "7\t8\t9", "7\t1e39\t9"));
  EXPECT_THAT(
      Orvane({"check", "walk.trc"}).output,
      HasSubstr("\n  It is taken as infinite: a scene that it gets into cannot be saved.\n"));
  EXPECT_EQ(Orvane({"import", "walk.trc", "-o", "walk.glb"}).status, 1);
}

TEST_F(TrcCheckTest, FarTooManyFramesAreAnError) {
  TrcText text = TwoMarkers();
  text.frame_count = 2'000'000'000;
  Write("walk.trc", text.Text());
  EXPECT_THAT(Orvane({"check", "walk.trc"}).output,
              HasSubstr("3:7: error: found 2000000000, expected about 3, as many as there are "
                        "[trc-frames-too-many]"));
}

// The dialog would have to go from the first frame to one before it.
TEST_F(TrcCheckTest, WithoutAnnouncedFramesNoImportTakesAFile) {
  TrcText text = TwoMarkers();
  for (const char* value : {"0", "-3", "three", ""}) {
    Write("walk.trc",
          Replaced(TwoMarkers().Text(), "60\t3\t2", std::string("60\t") + value + "\t2"));
    EXPECT_THAT(Orvane({"check", "walk.trc"}).output,
                HasSubstr(", as NumFrames says, expected a whole number of 1 or more "
                          "[trc-frames-unannounced]\n  The import refuses the file: its last frame "
                          "would come before its first. A converted file has no frames.\n"))
        << value;
    EXPECT_EQ(Orvane({"import", "walk.trc", "-o", "walk.glb"}).status, 1) << value;
    EXPECT_EQ(Orvane({"import", "walk.trc", "-o", "walk.glb", "--range", "1:3"}).status, 1);
    EXPECT_FALSE(Exists("walk.glb"));
  }
  text.frames.clear();
  Write("walk.trc", text.Text());
  EXPECT_THAT(Orvane({"check", "walk.trc"}).output, HasSubstr("3:7: error: found 0, as NumFrames"))
      << "also when there are none";
}

TEST_F(TrcCheckTest, FileOfNothingHasNoMarkers) {
  Write("walk.trc", "");
  EXPECT_EQ(Orvane({"check", "walk.trc"}).output,
            "walk.trc:1:1: error: found an empty file, expected text [trc-empty]\n"
            "  The import refuses the file; what else is odd about it is not told.\n"
            "walk.trc: 1 error\n");
}

TEST_F(TrcCheckTest, KeepsItsOutputShortHoweverOddTheFile) {
  Write("walk.trc", TwoMarkers().Text() + std::string(200'000, '\n') + std::string(100'000, 'x'));
  const ProgramResult result = Orvane({"check", "walk.trc"});
  EXPECT_LT(result.output.size(), 20'000U);
  EXPECT_THAT(result.output, HasSubstr("walk.trc: and 199980 more of [trc-frame-blank]\n"));
}

}  // namespace
