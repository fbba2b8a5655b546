#include "inspect/check/trc_check.h"

#include <memory>
#include <string>

#include "inspect/check/trc_look_over.h"
#include "inspect/check/trc_rules.h"
#include "tests/inspect/check/check_rows.h"
#include "tests/support/blocks.h"
#include "tests/support/checked_bytes.h"
#include "tests/support/replaced_text.h"
#include "tests/support/saved_text.h"
#include "tests/support/trc_text.h"

namespace {

using orvane::CheckTrc;
using orvane::TRCDocument;
using test::CheckRow;
using test::kMark;
using test::LittleEndian;
using test::Replaced;
using test::TrcText;
using test::WithReturns;
using namespace std::string_literals;

// Lines: 3 the values of the header, 4 the names, 5 the headings, 7 to 9 the frames.
TrcText Capture() {
  return {.markers = {"LFHD", "RFHD"},
          .frames = {{"1\t2\t3", "4\t5\t6"}, {"1\t2\t3", "4\t5\t6"}, {"7\t8\t9", "4\t5\t6"}}};
}

std::string Damaged(const std::string& from, const std::string& to) {
  return Replaced(Capture().Text(), from, to);
}

std::string SpareReturns() {
  TrcText text = Capture();
  text.line_end = "\r\r\n";
  return text.Text();
}

std::string WithoutTheSecondMarker() {
  TrcText text = Capture();
  for (TrcText::Frame& frame : text.frames) frame[1] = "";
  return text.Text();
}

// Eight markers above each other along Z, from 50 on, in front of a wall.
std::string StandingAlongZ(int step = 200) {
  TrcText text;
  text.frames.emplace_back();
  for (int marker = 0; marker < 8; ++marker) {
    text.markers.push_back("M" + std::to_string(marker));
    text.frames[0].push_back("0\t900\t" + std::to_string(50 + step * marker));
  }
  return text.Text();
}

// Twenty frames with room for a third marker that has no name; one has lost three cells.
std::string NarrowFrame() {
  TrcText text = Capture();
  text.frames.assign(20, {"1\t2\t3", "4\t5\t6\t\t\t"});
  text.frames[3] = {"1\t2\t3", "4\t5\t"};
  return text.Text();
}

// The second marker is at `sample` in so many frames from the second one on, behind a gap of the
// first marker; then it is elsewhere.
std::string AtFrames(std::size_t frames, const std::string& sample) {
  TrcText text = Capture();
  text.frames.assign(frames + 2, {"", sample});
  text.frames.front() = {"1\t2\t3", "4\t5\t6"};
  text.frames.back() = {"1\t2\t3", "7\t8\t9"};
  return text.Text();
}

std::string WithTimes(const std::vector<std::string>& times) {
  std::string bytes = Capture().Text();
  for (const std::string& time : times) bytes = Replaced(bytes, "0.000", time);
  return bytes;
}

// The time is gone in every frame, and `end` stands behind the last value of it.
std::string WithoutTime(const std::string& end = "") {
  TrcText text = Capture();
  text.frames = {};
  std::string bytes = text.Text();
  for (const char* const number : {"1", "2", "3"}) {
    bytes += std::string(number) + "\t1\t2\t3\t4\t5\t6" + end + "\n";
  }
  return Replaced(bytes, "60\t0\t2", "60\t3\t2");
}

std::vector<test::Told> ToldOf(const std::string& bytes) {
  TRCDocument document;
  test::Blocks lines(bytes, 0, 1);  // each line takes the place of the last one
  return test::AllTold(CheckTrc("walk.trc", lines, document).findings);
}

constexpr const char* kRefused = "The import refuses the file; the rest of it is not checked.";
constexpr const char* kRefusedWhole =
    "The import refuses the file; what else is odd about it is not told.";
constexpr const char* kInfinite =
    "It is taken as infinite: a scene that it gets into cannot be saved.";
constexpr const char* kColumnsShift =
    "It makes no marker, and the values of its column go to the next one: all columns behind it "
    "shift.";

const std::vector<CheckRow> kRows = {
    // The whole file
    {"OtherKind",
     "PK\x03\x04",
     {"1:1 error trc-other-kind", "a zip archive", "a TRC file", "Unpack it first."}},
    {"Empty", "", {"1:1 error trc-empty", "an empty file", "text", kRefusedWhole}},
    {"Utf16",
     LittleEndian(Capture().Text()),
     {"1:1 error trc-encoding", "UTF-16 text", "ASCII or UTF-8", kRefusedWhole}},
    {"QuotedCells",
     Replaced(Damaged("PathFileType\t4\t(X/Y/Z)", "\"PathFileType\"\t\"4\"\t\"(X/Y/Z)\""), "60\t",
              "\"60\"\t"),
     {"1:1 error trc-cells-quoted", "cells in quotation marks", "cells without them",
      kRefusedWhole}},
    {"CarriageReturnsAlone",
     WithReturns(Capture().Text()),
     {"1:1 error trc-line-ends", "lines that end with carriage returns alone",
      "LF or CR LF where lines end", kRefusedWhole}},

    // Lines
    {"ByteOrderMark",
     kMark + Capture().Text(),
     {"1:1 note trc-byte-order-mark", "a byte-order mark", "text without one, in ASCII or UTF-8",
      "It belongs to the first word, which does not count."}},
    {"Nul",
     Damaged("7\t8\t9\t4", "7\t8\t9\0\t4"s),
     {"9:14 warning trc-nul", "a NUL byte", "text", "The rest of its line is not read."}},
    {"LongLine",
     Damaged("5\t6\n3\t0.000", "5\t6" + std::string(10220, '\t') + "3\t0.000"),
     {"8:10240 warning trc-line-cut", "a line of more than 10239 bytes", "shorter lines",
      "It is read as several lines, of which the second starts here."}},
    {"CarriageReturn",
     Damaged("test.trc", "test.trc\rx"),
     {"1:32 warning trc-carriage-return", "a carriage return inside a line",
      "LF or CR LF where lines end", "It is read as a part of the line."}},
    {"SpareCarriageReturns",
     SpareReturns(),
     {"1:32 note trc-carriage-return-spare", "several carriage returns before LF",
      "LF or CR LF where lines end", "They are ignored, here and on all other lines."}},
    {"Comment",
     Damaged("PathFileType", "#made by hand\nPathFileType"),
     {"1:1 warning trc-comment", "\"#made by hand\"", "no comments",
      "The line is read as any other, and the next one is thrown away."}},
    {"NoLineEnd",
     Damaged("7\t8\t9\t4\t5\t6\n", "7\t8\t9\t4\t5\t6"),
     {"9:20 note trc-end-unfinished", "the end of the file", "a line end before it",
      "The line is read as it stands. Was the file cut short?"}},

    // Header
    {"OtherFileType",
     Damaged("PathFileType", "PathType"),
     {"1:1 note trc-file-type-unknown", "\"PathType\"", "PathFileType",
      "The word does not count."}},
    {"OtherPathType",
     Damaged("Type\t4", "Type\t5"),
     {"1:14 warning trc-path-type-unknown", "\"5\"", "3 or 4", "The first frame is number 1."}},
    {"BlanksForTabs",
     Damaged("PathFileType\t4\t(X/Y/Z)\ttest.trc", "PathFileType 4 (X/Y/Z) test.trc"),
     {"1:1 error trc-tabs-missing", "\"PathFileType 4 (X/Y/Z) test.trc\"",
      "tabs between fields, not blanks", kRefused}},
    {"CommentFirst",
     "# by hand\n" + Capture().Text(),
     {"1:1 error trc-tabs-missing", "\"# by hand\"", "PathFileType, and no comment before it",
      kRefused}},
    {"CommasForTabs",
     Damaged("PathFileType\t4\t(X/Y/Z)\ttest.trc", "PathFileType,4,(X/Y/Z),test.trc"),
     {"1:1 error trc-tabs-missing", "\"PathFileType,4,(X/Y/Z),test.trc\"",
      "tabs between fields, not commas", kRefused}},
    {"SemicolonsForTabs",
     Damaged("PathFileType\t4\t(X/Y/Z)\ttest.trc", "PathFileType;4;(X/Y/Z);test.trc"),
     {"1:1 error trc-tabs-missing", "\"PathFileType;4;(X/Y/Z);test.trc\"",
      "tabs between fields, not semicolons", kRefused}},
    {"OtherCoordinates",
     Damaged("(X/Y/Z)", "(x/y/z)"),
     {"1:16 error trc-coordinates-refused", "\"(x/y/z)\"",
      "(X/Y/Z) as the third field, and a tab behind it", kRefused}},
    {"RateWithFraction",
     Damaged("60\t60\t3", "59.94\t60\t3"),
     {"3:1 warning trc-rate-cut", "\"59.94\"", "a whole number",
      "59 is taken: a minute lasts 60.96 s."}},
    {"RateBelowOne",
     Damaged("60\t60\t3", "0.5\t60\t3"),
     {"3:1 warning trc-rate-cut", "\"0.5\"", "a whole number", "0 is taken."}},
    {"RateAboveTheScene",
     Damaged("60\t60\t3", "4801\t60\t3"),
     {"3:1 warning trc-rate-out-of-range", "\"4801\"", "1 to 4800 frames per second",
      "4800 is set, unless --frame-rate keep is given."}},
    {"RateBetweenTicks",
     Damaged("60\t60\t3", "250\t60\t3"),
     {"3:1 note trc-rate-inexact", "\"250\"",
      "a rate that goes into 4800 without a rest, such as 240",
      "250 a second become 252.6 in the host: a minute lasts 59.4 s there."}},
    {"CameraRateWithFraction",
     Damaged("60\t60\t3", "60\t59.94\t3"),
     {"3:4 warning trc-camera-rate-cut", "\"59.94\"", "a whole number",
      "59 is taken: nothing depends on it; a converted file tells it."}},
    {"NoCameraRate",
     Damaged("60\t60\t3", "60\t0\t3"),
     {"3:4 note trc-camera-rate", "\"0\"", "the rate of the cameras",
      "Nothing depends on it; a converted file tells it."}},
    {"OtherUnit",
     Damaged("\tmm\t", "\tMm\t"),
     {"3:11 warning trc-unit-unknown", "\"Mm\"",
      "mm, cm, m, in, ft or yd, or the same in capitals, and a tab", "Millimeters are taken."}},
    {"UnitWithBlanks",
     Damaged("\tmm\t", "\tmm  \t"),
     {"3:11 note trc-unit-blanks", "\"mm  \"", "no blanks beside the unit",
      "Millimeters are taken, as it says."}},
    {"OtherUnitWithBlanks",
     Damaged("\tmm\t", "\tcm \t"),
     {"3:11 warning trc-unit-unknown", "\"cm \"",
      "mm, cm, m, in, ft or yd, or the same in capitals, and a tab", "Millimeters are taken."}},
    {"UnitAtTheEnd",
     Damaged("mm\t60\t1\t3", "mm"),
     {"3:11 warning trc-unit-ends-line", "\"mm\"", "a tab behind the unit",
      "Millimeters are taken."}},

    // Columns
    {"LastNameLost",
     Damaged("RFHD\t\t\t", "RFHD"),
     {"4:20 warning trc-name-lost", "\"RFHD\"", "a tab behind the name",
      "It makes no marker, and its values are not read."}},
    {"NamesTwoTabsApart",
     Damaged("LFHD\t\t\tRFHD\t\t\t", "LFHD\t\tRFHD\t\t"),
     {"4:19 warning trc-names-misplaced", "\"RFHD\", 2 tabs behind \"LFHD\"",
      "three tabs from each name to the next",
      "A name is taken every three tabs: markers get other names and other values."}},
    {"EmptyName",
     Damaged("LFHD", ""),
     {"4:13 warning trc-name-empty", "an empty name", "a name",
      "It makes a marker without a name."}},
    {"NameWithBlank",
     Damaged("LFHD", "left head"),
     {"4:13 note trc-name-with-blank", "\"left head\"", "a name of one word",
      "It is kept; in a converted file it reads as several names."}},
    {"UnnamedColumn",
     Damaged("LFHD", "Unnamed"),
     {"4:13 warning trc-column-unnamed", "\"Unnamed\"", "a name of its own", kColumnsShift}},
    {"RepeatedName",
     Damaged("RFHD", "LFHD"),
     {"4:20 warning trc-column-repeated", "\"LFHD\" again", "a name of its own; column 13 has it",
      kColumnsShift}},
    {"HeadingsForNames",
     Damaged("LFHD\t\t\tRFHD\t\t\t", "X1\tY1\tZ1\tX2\tY2\tZ2\t"),
     {"4:13 warning trc-names-headings", "X1, Y1 and so on", "the names of the markers",
      "They are the names of the markers: X1, X2 and so on; the next line is not read."}},
    {"TimeLostInAllFrames",
     WithoutTime(),
     {"7:1 warning trc-columns-misfit", "7 fields", "8, as frame, time and markers have",
      "Values may belong to other markers than those that get them."}},
    {"NameInAnotherEncoding",
     Damaged("LFHD", "t\xEAte"),
     {"4:13 warning trc-name-encoding", "\"t\xEAte\"", "a name in ASCII or UTF-8",
      "Its bytes are kept, and most programs will not show them as letters."}},
    {"RepeatedNameWithoutValues",
     Damaged("RFHD\t\t\t", "RFHD\t\t\tLFHD\t\t\t"),
     {"4:27 note trc-column-repeated-blank", "\"LFHD\" again",
      "a name of its own; column 13 has it",
      "It makes no marker; neither it nor a column behind it holds a value."}},
    {"NoMarkers",
     Damaged("LFHD\t\t\tRFHD\t\t\t", ""),
     {"10:1 error trc-markers-missing", "no marker", "names in the fourth line, a tab behind each",
      "The import makes nothing of the file."}},
    {"OtherMarkerCount",
     Damaged("3\t2\tmm", "3\t5\tmm"),
     {"3:9 warning trc-marker-count", "2 markers", "5, as NumMarkers says",
      "The import takes the markers that are there."}},
    {"NoSubHeader",
     Damaged("\t\tX1\tY1\tZ1\tX2\tY2\tZ2\n\n", ""),
     {"5:1 warning trc-sub-header-missing", "\"1\"", "the line of X1, Y1, Z1 and so on",
      "The frame on this line is lost."}},

    // Numbers
    {"DecimalCommas",
     Replaced(Damaged("7\t8\t9", "7,5\t-8,25\t9"), "60\t60\t3", "60\t59,94\t3"),
     {"3:4 warning trc-decimal-commas", "\"59,94\" in 3 cells", "a point in numbers, no comma",
      "A number ends at the comma: 59 is taken for 59,94."}},
    {"DecimalCommasWithoutAnythingBehind",
     Replaced(Damaged("7\t8\t9", "7,5\t8\t9"), "60\t60\t3", "60\t60,00\t3"),
     {"9:9 warning trc-decimal-commas", "\"7,5\" in 2 cells", "a point in numbers, no comma",
      "A number ends at the comma: 7 is taken for 7,5."}},
    {"TwoCommas",
     Damaged("7\t8\t9", "7,5,5\t8\t9"),
     {"9:9 warning trc-number-unreadable", "\"7,5,5\"", "a number", "7 is taken."}},
    {"MissingHeaderNumber",
     Damaged("60\t3\t2", "60\t\t2"),
     {"3:7 warning trc-number-missing", "nothing", "a whole number", "0 is taken."}},
    {"MissingCoordinate",
     Damaged("7\t8\t9", "7\t\t9"),
     {"9:11 warning trc-number-missing", "nothing", "a number", "0 is taken."}},
    {"Word",
     Damaged("7\t8\t9", "NaN\t8\t9"),
     {"9:9 warning trc-number-unreadable", "\"NaN\"", "a number", "0 is taken."}},
    {"UnitBehind",
     Damaged("7\t8\t9", "7\t8\t9.5mm"),
     {"9:13 warning trc-number-unreadable", "\"9.5mm\"", "a number", "9.5 is taken."}},
    {"FirstFrameInWords",
     Damaged("60\t1\t3", "60\tone\t3"),
     {"3:17 warning trc-number-unreadable", "\"one\"", "a whole number", "0 is taken."}},
    {"FrameNumberWithFraction",
     Damaged("3\t0.000", "3.5\t0.000"),
     {"9:1 warning trc-number-cut", "\"3.5\"", "a whole number, the frame's",
      "3 is taken; only the first of a file is used."}},
    {"CoordinateTooLarge",
     Damaged("7\t8\t9", "7\t1e39\t9"),
     {"9:11 warning trc-number-infinite", "\"1e39\"", "a finite number", kInfinite}},
    {"HeaderNumberTooLarge",
     Damaged("60\t60\t3", "60\t99999999999\t3"),
     {"3:4 warning trc-number-out-of-range", "\"99999999999\"", "a whole number",
      "2147483647 is taken."}},

    // Frames
    {"TabsForTheBlankLine",
     Damaged("Z2\n\n", "Z2\n\t\t\t\n"),
     {"6:1 warning trc-blank-line-tabs", "a line of tabs", "a blank line, or the first frame",
      "It is the first frame, without positions: every sample comes a frame late."}},
    {"BlankAtTheEnd",
     Capture().Text() + "\n \t\n",
     {"10:1 note trc-lines-at-end", "2 blank lines at the end",
      "the end of the file behind the last frame",
      "No more frames are announced than stand before: none is taken from there."}},
    {"Blank",
     Damaged("3\t0.000\t7\t8\t9\t4\t5\t6", ""),
     {"9:1 warning trc-frame-blank", "a blank line", "a frame",
      "It is a frame in which no marker has a position."}},
    {"Short",
     Damaged("7\t8\t9\t4\t5\t6", "7\t8\t9"),
     {"9:14 warning trc-frame-short", "5 fields", "8: frame, time and 2 markers",
      "The markers that are missing have no position in this frame."}},
    {"CellsLost",
     NarrowFrame(),
     {"10:1 warning trc-frame-narrow", "8 fields", "11, as in most frames",
      "If a cell was lost, the values behind it go to other coordinates and markers."}},
    {"ValueBehindTheLast",
     Damaged("9\t4\t5\t6", "9\t4\t5\t6\t7"),
     {"9:21 warning trc-value-extra", "\"7\"", "the end of the line, behind 2 markers",
      "It is ignored, with what follows it."}},
    {"SampleWithoutX",
     Damaged("7\t8\t9", "\t8\t9"),
     {"9:10 warning trc-sample-without-x", "\"8\"", "nothing, as X is empty",
      "It is ignored: the marker has no position in this frame."}},
    {"FirstNumberThatIsNotAnnounced",
     Damaged("1\t0.000", "7\t0.000"),
     {"7:1 warning trc-first-frame", "from 7 on", "1 to 3, as OrigDataStartFrame says",
      "--range takes them by these numbers: 1:3 for all."}},
    {"FirstNumberOfAnotherPathType",
     Replaced(Damaged("Type\t4", "Type\t5"), "1\t0.000", "7\t0.000"),
     {"7:1 warning trc-first-frame", "from 7 on", "1 to 3, as the path type is neither 3 nor 4",
      "--range takes them by these numbers: 1:3 for all."}},
    {"NumberThatDoesNotFollow",
     Damaged("3\t0.000", "5\t0.000"),
     {"9:1 warning trc-frame-number", "\"5\"", "the number behind that of the frame before",
      "The number is ignored: frames follow each other as their lines do."}},
    {"TimesOfAnotherRate",
     WithTimes({"0.00", "0.10", "0.20"}),
     {"8:1 note trc-time-differs", "0.100 s", "0.017 s, as the frame rate gives",
      "The time column is not read: frames follow each other at the frame rate."}},
    {"TimeCodes",
     WithTimes({"10:22:07:05", "10:22:07:06", "10:22:07:07"}),
     {"7:1 note trc-time-unreadable", "\"10:22:07:05\"", "a number of seconds",
      "The time column is not read."}},
    {"MoreAnnounced",
     Damaged("60\t3\t2", "60\t4\t2"),
     {"3:7 warning trc-frame-count", "4, as NumFrames says", "3, as many as there are",
      "Behind the first 3 frames every marker goes to the origin."}},
    {"FewerAnnounced",
     Damaged("60\t3\t2", "60\t2\t2"),
     {"3:7 warning trc-frame-count", "2, as NumFrames says", "3, as many as there are",
      "Only the first 2 of 3 frames are imported."}},
    {"OneAnnounced",
     Damaged("60\t3\t2", "60\t1\t2"),
     {"3:7 warning trc-frame-count", "1, as NumFrames says", "3, as many as there are",
      "Only the first of 3 frames is imported."}},
    {"NoneAnnounced",
     Damaged("60\t3\t2", "60\t0\t2"),
     {"3:7 error trc-frames-unannounced", "0, as NumFrames says", "a whole number of 1 or more",
      "The import refuses the file: its last frame would come before its first. A converted file "
      "has no frames."}},
    {"FarTooManyAnnounced",
     Damaged("60\t3\t2", "60\t2000000000\t2"),
     {"3:7 error trc-frames-too-many", "2000000000", "about 3, as many as there are",
      "The import is refused, unless --range FROM:TO takes a part of them."}},
    {"GapToTheEnd",
     Damaged("7\t8\t9", "\t\t"),
     {"9:1 note trc-marker-gaps", "no position of \"LFHD\" in 1 frame from here on",
      "one in every frame",
      "The import sets those frames to the origin; a converted file has dropouts."}},
    {"SeveralGaps",
     Replaced(Damaged("1\t2\t3", "\t\t"), "7\t8\t9", "\t\t"),
     {"7:1 note trc-marker-gaps",
      "no position of \"LFHD\" in 2 frames: 2 gaps, the longest of 1 frame from line 7 on",
      "one in every frame",
      "The import sets those frames to the origin; a converted file has dropouts."}},
    {"NeverSeen",
     WithoutTheSecondMarker(),
     {"4:20 warning trc-marker-never-seen", "no position of \"RFHD\"", "one in every frame",
      "The import makes an object that stays at the origin."}},

    // What moves
    {"ZerosForAGap",
     AtFrames(2, "0.00\t0\t-0"),
     {"8:1 warning trc-position-zero", "\"RFHD\" at 0 0 0 in 2 frames",
      "nothing for X where a position is missing",
      "It is taken for a position, and no gap is seen: 2 samples in all."}},
    {"NinesForAGap",
     AtFrames(3, "-9999.99\t9999.99\t0"),
     {"8:1 warning trc-position-stand-in", "\"RFHD\" at 9999.99 in 3 frames",
      "nothing for X where a position is missing",
      "9999.99 seems to stand for a missing position; it is taken for one, and no gap is seen: 3 "
      "samples in all."}},
    {"OutOfSight",
     Damaged("7\t8\t9", "7\t-9999999\t9"),
     {"9:1 warning trc-position-far", "\"LFHD\" 10 km away", "a position within 1 km, or none",
      "It is taken for a position all the same."}},
    {"Giant",
     Replaced(StandingAlongZ(), "\tmm\t", "\tcm\t"),
     {"3:11 note trc-size", "14.0 m", "the size of a body",
      "Lengths are taken in cm all the same; is that their unit?"}},
    {"Dwarf",
     StandingAlongZ(1),
     {"3:11 note trc-size", "0.0070 m", "the size of a body",
      "Lengths are taken in mm all the same; is that their unit?"}},
    {"HeightsAlongZ",
     StandingAlongZ(),
     {"7:1 note trc-up-axis", "heights along Z: 50 to 1450 mm", "heights along Y",
      "The file is taken as Y up: what stands lies on its side."}},
};

TEST(TrcCheck, FindsNothingInASoundFile) {
  const orvane::CheckedFile checked = test::CheckedTrc("walk.trc", Capture().Text());
  EXPECT_EQ(checked.file, "walk.trc");
  EXPECT_EQ(checked.kind, "TRC");
  EXPECT_EQ(checked.contents, "2 markers, 3 frames");
  EXPECT_THAT(test::AllTold(checked.findings), testing::IsEmpty());
}

TEST(TrcCheck, TellsTheSameWhereNoSampleIsKept) {
  for (const CheckRow& row : kRows) {
    const orvane::CheckedFile kept = test::CheckedTrc("walk.trc", row.bytes);
    TRCDocument document;
    const auto open = [&row] { return std::make_unique<test::Blocks>(row.bytes, 0, 1); };
    const orvane::LookedOverTrc looked = orvane::LookOverTrc("walk.trc", open, document);
    EXPECT_EQ(test::AllTold(looked.checked.findings), test::AllTold(kept.findings)) << row.behavior;
    EXPECT_EQ(looked.checked.contents, kept.contents) << row.behavior;
    EXPECT_EQ(looked.checked.refusal, kept.refusal) << row.behavior;
  }
}

TEST(TrcCheck, TellsTheCauseAloneOfNamesThatStandElsewhere) {
  for (const char* const names :
       {"LFHD\t\tRFHD\t\t", "LFHD\t\t\t\tRFHD\t\t\t", "\tLFHD\t\t\tRFHD\t\t\t"}) {
    const auto told = ToldOf(Damaged("LFHD\t\t\tRFHD\t\t\t", names));
    EXPECT_THAT(told, testing::ElementsAre(testing::Contains(testing::EndsWith("-misplaced"))))
        << names;
  }
}

TEST(TrcCheck, TakesNoTextBesideANameForAMisplacedOne) {
  EXPECT_THAT(ToldOf(Damaged("LFHD\t\t\tRFHD\t\t\t", "LFHD\tmm\t\tRFHD\tmm\t\t")),
              testing::IsEmpty());
}

TEST(TrcCheck, TellsTheCauseAloneOfALineOfTabs) {
  for (const std::string line : {"\t", "\t\t\t\t\t\t\t"}) {
    for (const std::string first : {"1", "7"}) {
      const std::string numbered =
          Replaced(Capture().Text(), "\n1\t0.000", "\n" + first + "\t0.000");
      EXPECT_THAT(ToldOf(Replaced(numbered, "Z2\n\n", "Z2\n" + line + "\n")),
                  testing::Contains(testing::Contains(testing::EndsWith("-line-tabs"))))
          << line;
    }
    EXPECT_EQ(ToldOf(Damaged("Z2\n\n", "Z2\n" + line + "\n")).size(), 1U) << line;
  }
}

TEST(TrcCheck, TellsTheCauseAloneOfBlankLinesAtTheEnd) {
  EXPECT_EQ(ToldOf(Capture().Text() + "\n\n").size(), 1U);
  EXPECT_EQ(ToldOf(Damaged("60\t3\t2", "60\t2\t2") + "\n").size(), 2U) << "and the count";
}

TEST(TrcCheck, TakesABlankLineAtTheEndForAFrameThatIsAnnounced) {
  EXPECT_THAT(ToldOf(Damaged("60\t3\t2", "60\t4\t2") + "\n"),
              testing::Contains(testing::Contains("10:1 warning trc-frame-blank")));
}

TEST(TrcCheck, FindsNothingInFramesThatLeaveOutTheirLastCells) {
  TrcText text = Capture();
  text.frames.assign(20, {"1\t2\t3", "4\t5\t6\t\t\t"});
  text.frames[3] = {"1\t2\t3", "4\t5\t6"};
  EXPECT_THAT(ToldOf(text.Text()), testing::IsEmpty());
}

TEST(TrcCheck, TellsHowFramesAreNumberedAndTaken) {
  std::string bytes = Capture().Text();
  for (const char* const number : {"1", "2", "3"}) {
    bytes = Replaced(bytes, std::string("\n") + number + "\t0.0",
                     std::string("\n18") + number + "\t0.0");
  }
  EXPECT_THAT(ToldOf(bytes),
              testing::ElementsAre(test::Told{
                  "7:1 warning trc-first-frame", "181 to 183", "1 to 3, as OrigDataStartFrame says",
                  "--range takes them by these numbers: 1:3 for all."}));
}

TEST(TrcCheck, TellsTheCauseAloneOfColumnsThatDoNotFitTheNames) {
  TrcText narrow = Capture();
  for (TrcText::Frame& frame : narrow.frames) frame.pop_back();
  TrcText wide = Capture();
  for (TrcText::Frame& frame : wide.frames) frame.insert(frame.begin(), "0");
  const std::string without_name = Replaced(Damaged("LFHD\t\t\t", ""), "60\t3\t2\t", "60\t3\t1\t");
  for (const std::string& bytes :
       {narrow.Text(), wide.Text(), without_name, WithoutTime(), WithoutTime("\t")}) {
    EXPECT_THAT(
        ToldOf(bytes),
        testing::ElementsAre(testing::Contains(testing::EndsWith(" warning trc-columns-misfit"))))
        << bytes;
  }
}

TEST(TrcCheck, FindsNoNarrowFrameInALineThatTheEndOfTheFileCuts) {
  TrcText text = Capture();
  text.frames.assign(20, {"1\t2\t3", "4\t5\t6\t"});
  std::string bytes = text.Text();
  bytes.resize(bytes.size() - std::string("6\t\n").size());
  EXPECT_THAT(
      ToldOf(bytes),
      testing::Not(testing::Contains(testing::Contains(testing::EndsWith("trc-frame-narrow")))));
  EXPECT_THAT(ToldOf(bytes + "\n"),
              testing::Contains(testing::Contains(testing::EndsWith("trc-frame-narrow"))));
}

TEST(TrcCheck, TakesPositionsThatMayBeMeasuredForNothingElse) {
  constexpr const char* kZero = "trc-position-zero";
  constexpr const char* kStandIn = "trc-position-stand-in";
  const auto tells = [](const std::string& code) {
    return testing::Contains(testing::Contains(testing::EndsWith(code)));
  };
  EXPECT_THAT(ToldOf(AtFrames(1, "0\t0\t0")), testing::Not(tells(kZero))) << "one sample";
  EXPECT_THAT(ToldOf(AtFrames(2, "999\t999\t999")), testing::Not(tells(kStandIn))) << "twice";
  EXPECT_THAT(ToldOf(AtFrames(5, "4\t14\t6")), testing::Not(tells(kStandIn))) << "near";
  EXPECT_THAT(ToldOf(AtFrames(5, "4\t1e39\t6")), testing::Not(tells(kStandIn))) << "infinite";
  EXPECT_THAT(ToldOf(AtFrames(3, "9999999\t9999999\t9999999")),
              testing::Not(tells("trc-position-far")))
      << "told as what it stands for";
  TrcText still = Capture();
  still.frames.assign(5, {"0\t0\t0", "4\t5\t6"});
  EXPECT_THAT(ToldOf(still.Text()), testing::IsEmpty()) << "never elsewhere";
}

TEST(TrcCheck, FindsNothingInTimesThatSayNoOtherRate) {
  for (const std::vector<std::string>& times :
       {std::vector<std::string>{"5.02", "5.03", "5.05"}, {"7", "7", "7"}, {"", "x", ""}}) {
    EXPECT_THAT(ToldOf(WithTimes(times)), testing::IsEmpty()) << times.front();
  }
}

TEST(TrcCheck, TellsOfEachDamage) { test::ExpectTold(kRows, ToldOf); }

TEST(TrcCheck, HasADamageForEachRule) { test::ExpectARowForEach(orvane::trc::kRules, kRows); }

}  // namespace
