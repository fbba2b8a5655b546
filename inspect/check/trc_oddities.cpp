#include "inspect/check/trc_oddities.h"

#include <array>
#include <cstdint>
#include <string>

#include "formats/text/number_faults.h"
#include "formats/text/numbers.h"
#include "inspect/check/oddity_table.h"
#include "inspect/check/trc_rules.h"

namespace orvane::trc {
namespace {

constexpr const char* kCannotBeSaved =
    "It is taken as infinite: a scene that it gets into cannot be saved.";

bool IsFrameNumber(const MetTrcOddity& met) { return met.in_frames && met.place.field == 1; }

bool IsWhole(const MetTrcOddity& met) { return !met.in_frames || IsFrameNumber(met); }

std::string Quoted(const MetTrcOddity& met) { return Quote(met.text); }

std::string ExpectedNumber(const MetTrcOddity& met) {
  if (IsFrameNumber(met)) return "a whole number, the frame's";
  return IsWhole(met) ? "a whole number" : "a number";
}

std::string TakenNumber(const MetTrcOddity& met) {
  if (IsFrameNumber(met)) {
    return FormatInt(ParseInt(met.text)) + " is taken; only the first of a file is used.";
  }
  if (IsWhole(met)) return FormatInt(ParseInt(met.text)) + " is taken.";
  const double value = ParseDouble(met.text);
  if (FitsSinglePrecision(value)) return FormatShortest(value) + " is taken.";
  return kCannotBeSaved;
}

std::string MarkersHeld(const MetTrcOddity& met) { return CountOf(met.markers, "marker"); }

std::string AnnouncedMarkers(const MetTrcOddity& met) {
  return std::string(met.text) + ", as NumMarkers says";
}

std::string FieldsHeld(const MetTrcOddity& met) { return CountOf(met.place.field - 1, "field"); }

std::string ExpectedFields(const MetTrcOddity& met) {
  const std::size_t fields = 2 + 3 * met.markers;
  return FormatInt(static_cast<std::int64_t>(fields)) + ": frame, time and " + MarkersHeld(met);
}

std::string EndBehindMarkers(const MetTrcOddity& met) {
  return "the end of the line, behind " + MarkersHeld(met);
}

constexpr auto kRows = std::to_array<OddityRow<TRCOddity, MetTrcOddity>>({
    // Numbers, of which every cell of a file may be a bad one
    {TRCOddity::kUnreadableNumber, Rule("trc-number-unreadable"), Quoted, ExpectedNumber,
     TakenNumber},
    {TRCOddity::kMissingNumber, Rule("trc-number-missing"), Quoted, ExpectedNumber, TakenNumber},
    {TRCOddity::kNumberCut, Rule("trc-number-cut"), Quoted, ExpectedNumber, TakenNumber},
    {TRCOddity::kNumberOutOfBounds, Rule("trc-number-out-of-range"), Quoted, ExpectedNumber,
     TakenNumber},

    // Lines
    {TRCOddity::kByteOrderMark, Rule("trc-byte-order-mark"), "a byte-order mark",
     "text without one, in ASCII or UTF-8", "It belongs to the first word, which does not count."},
    {TRCOddity::kHiddenByNul, Rule("trc-nul"), "a NUL byte", "text",
     "The rest of its line is not read."},
    {TRCOddity::kLongLine, Rule("trc-line-cut"), "a line of more than 10239 bytes", "shorter lines",
     "It is read as several lines, of which the second starts here."},
    {TRCOddity::kCarriageReturn, Rule("trc-carriage-return"), "a carriage return inside a line",
     "LF or CR LF where lines end", "It is read as a part of the line."},
    {TRCOddity::kSpareCarriageReturns, Rule("trc-carriage-return-spare"),
     "several carriage returns before LF", "LF or CR LF where lines end",
     "They are ignored, here and on all other lines."},
    {TRCOddity::kUnfinishedEnd, Rule("trc-end-unfinished"), "the end of the file",
     "a line end before it", "The line is read as it stands. Was the file cut short?"},
    {TRCOddity::kCommentReplacesLine, Rule("trc-comment"), Quoted, "no comments",
     "The line is read as any other, and the next one is thrown away."},

    // Header
    {TRCOddity::kUnknownPathType, Rule("trc-path-type-unknown"), Quoted, "3 or 4",
     "The first frame is number 1."},
    {TRCOddity::kUnknownUnits, Rule("trc-unit-unknown"), Quoted,
     "mm, cm, m, in, ft or yd, or the same in capitals, and a tab", "Millimeters are taken."},
    {TRCOddity::kUnitsEndTheLine, Rule("trc-unit-ends-line"), Quoted, "a tab behind the unit",
     "Millimeters are taken."},

    // Columns
    {TRCOddity::kMarkerNameLost, Rule("trc-name-lost"), Quoted, "a tab behind the name",
     "It makes no marker, and its values are not read."},
    {TRCOddity::kMarkerNameEmpty, Rule("trc-name-empty"), "an empty name", "a name",
     "It makes a marker without a name."},
    {TRCOddity::kUnnamedColumnDropped, Rule("trc-column-unnamed"), Quoted, "a name of its own",
     kColumnsShift},
    {TRCOddity::kMarkerCountMismatch, Rule("trc-marker-count"), MarkersHeld, AnnouncedMarkers,
     "The import takes the markers that are there."},
    {TRCOddity::kSubHeaderIsData, Rule("trc-sub-header-missing"), Quoted,
     "the line of X1, Y1, Z1 and so on", "The frame on this line is lost."},

    // Frames
    {TRCOddity::kBlankFrame, Rule("trc-frame-blank"), "a blank line", "a frame",
     "It is a frame in which no marker has a position."},
    {TRCOddity::kShortFrame, Rule("trc-frame-short"), FieldsHeld, ExpectedFields,
     "The markers that are missing have no position in this frame."},
    {TRCOddity::kSurplusValue, Rule("trc-value-extra"), Quoted, EndBehindMarkers,
     "It is ignored, with what follows it."},
    {TRCOddity::kSampleWithoutX, Rule("trc-sample-without-x"), Quoted, "nothing, as X is empty",
     "It is ignored: the marker has no position in this frame."},
    {TRCOddity::kFrameNumberSkips, Rule("trc-frame-number"), Quoted,
     "the number behind that of the frame before",
     "The number is ignored: frames follow each other as their lines do."},
});

// Of a number that comes into a scene.
void AddInfinite(const MetTrcOddity& met, FindingList& findings) {
  findings.Add(Rule("trc-number-infinite"), met.place, [&met] {
    return FindingWords{Quoted(met), "a finite number", kCannotBeSaved};
  });
}

}  // namespace

void AddOddity(const MetTrcOddity& met, FindingList& findings) {
  if (met.oddity == TRCOddity::kNumberOutOfBounds && !IsWhole(met)) {
    return AddInfinite(met, findings);
  }
  orvane::AddOddity(kRows, met, met.place, findings);
}

}  // namespace orvane::trc
