#include "inspect/check/htr_oddities.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>

#include "formats/text/number_faults.h"
#include "formats/text/numbers.h"
#include "inspect/check/htr_rules.h"
#include "inspect/check/oddity_table.h"
#include "inspect/check/similar_words.h"

namespace orvane::htr {
namespace {

constexpr const char* kRefused = "The import refuses the file; the rest of it is not checked.";
constexpr const char* kCannotBeSaved =
    "It is taken as infinite: a scene that it gets into cannot be saved.";
constexpr std::string_view kFrameColumn = "Frame";

bool IsWhole(std::string_view field) {
  return field == kFrameColumn || field == "NumSegments" || field == "NumFrames" ||
         field == "DataFrameRate";
}

bool IsFactor(std::string_view field) {
  return field == "BoneScaleFactor" || field == "ScaleFactor";
}

bool IsLength(std::string_view field) {
  return field == "Tx" || field == "Ty" || field == "Tz" || field == "BoneLength";
}

// Whether a number that is too large for a length is an angle or a factor, which may be so large.
bool MayBeSoLarge(const MetHtrOddity& met) {
  return !IsWhole(met.field) && !IsLength(met.field) && std::isfinite(ParseDouble(met.cell.text));
}

std::string Quoted(const MetHtrOddity& met) { return Quote(met.cell.text); }

std::string QuotedAgain(const MetHtrOddity& met) { return Quote(met.cell.text) + " again"; }

std::string ExpectedNumber(const MetHtrOddity& met) {
  return (IsWhole(met.field) ? "a whole number for " : "a number for ") + std::string(met.field);
}

std::string ExpectedInRange(const MetHtrOddity& met) {
  using Limits = std::numeric_limits<std::int32_t>;
  const std::string field(met.field);
  if (!IsWhole(met.field)) return "a finite number for " + field;
  return "a whole number from " + FormatInt(met.field == "NumFrames" ? 0 : Limits::min()) + " to " +
         FormatInt(Limits::max()) + " for " + field;
}

std::string TakenWhole(const MetHtrOddity& met) {
  const std::int32_t value = ParseInt(met.cell.text);
  return FormatInt(met.field == "NumFrames" ? std::max(value, 0) : value) + " is taken";
}

std::string TakenNumber(const MetHtrOddity& met) {
  if (met.field == kFrameColumn) {
    return TakenWhole(met) + "; only the first frame number of a file is used.";
  }
  if (IsWhole(met.field)) return TakenWhole(met) + ".";
  const double value = ParseDouble(met.cell.text);
  const bool is_finite = IsLength(met.field) ? FitsSinglePrecision(value) : std::isfinite(value);
  if (is_finite) return FormatShortest(value) + " is taken.";
  if (IsFactor(met.field)) return "It is taken as infinite; the import does not use it.";
  return kCannotBeSaved;
}

std::string ExpectedValue(const MetHtrOddity& met) {
  return std::string(kKeywords[KeywordIndex(met.field)].values) + " for " + std::string(met.field);
}

std::string ExpectedOwnName(const MetHtrOddity& met) {
  const SegmentLines* const first = met.parts.Find(met.cell.text);
  const std::string expected = "a name of its own for every segment";
  if (first == nullptr) return expected;
  return expected + "; line " + FormatInt(static_cast<std::int64_t>(first->name.line)) + " has it";
}

std::string ExpectedKnownSegment(const MetHtrOddity& met) {
  return ExpectedSegment(met.cell.text, met.parts);
}

std::string ExpectedParent(const MetHtrOddity& met) {
  return "GLOBAL or " + ExpectedSegment(met.cell.text, met.parts);
}

std::string HierarchyLines(const MetHtrOddity& met) {
  return CountOf(met.parts.segments.size(), "line") + " in [SegmentNames&Hierarchy]";
}

std::string BaseLines(const MetHtrOddity& met) {
  return CountOf(met.parts.base_lines, "line") + " in [BasePosition]";
}

std::string AnnouncedSegments(const MetHtrOddity& met) {
  const auto& announced = met.parts.Value("NumSegments");
  const std::int32_t count = announced ? ParseInt(announced->text) : 0;
  return FormatInt(count) + (announced ? ", as NumSegments says" : ", as NumSegments is missing");
}

// A cell that was lost looks as one at the end of its line.
std::string TakenForMissing(const MetHtrOddity& met) {
  if (KeywordIndex(met.field) < kKeywords.size()) return TakenNumber(met);
  return "0 is taken where the line ends; if a cell is lost before, the values behind it are in "
         "other columns than they belong to.";
}

constexpr auto kRows = std::to_array<OddityRow<HtrOddity, MetHtrOddity>>({
    // Numbers, of which every cell of a file may be a bad one
    {HtrOddity::kUnreadableNumber, Rule("htr-number-unreadable"), Quoted, ExpectedNumber,
     TakenNumber},
    {HtrOddity::kMissingNumber, Rule("htr-number-missing"), Quoted, ExpectedNumber,
     TakenForMissing},
    {HtrOddity::kCutNumber, Rule("htr-number-cut"), Quoted, ExpectedNumber, TakenNumber},
    {HtrOddity::kNumberOutOfBounds, Rule("htr-number-out-of-range"), Quoted, ExpectedInRange,
     TakenNumber},

    // Lines
    {HtrOddity::kByteOrderMark, Rule("htr-byte-order-mark"), "a byte-order mark",
     "text without one, in ASCII or UTF-8", "It belongs to the first line, which does not count."},
    {HtrOddity::kHiddenByNul, Rule("htr-nul"), "a NUL byte", "text",
     "The rest of its line is not read."},
    {HtrOddity::kLongLine, Rule("htr-line-cut"), "a line of more than 10239 bytes", "shorter lines",
     "It is read as several lines, of which the second starts here."},
    {HtrOddity::kCarriageReturn, Rule("htr-carriage-return"), "a carriage return inside a line",
     "LF or CR LF where lines end", "It is read as a part of the line."},
    {HtrOddity::kCommentInWord, Rule("htr-comment-in-word"), Quoted, "a blank before a comment",
     "The line ends here, and with it the word before the #."},
    {HtrOddity::kLineBeforeFirstSection, Rule("htr-line-before-section"), Quoted, "[Header] first",
     "The line is ignored."},
    {HtrOddity::kLineAfterEnd, Rule("htr-after-end"), Quoted, "nothing after [EndOfFile]",
     "It is ignored, with all that follows."},
    {HtrOddity::kExtraCells, Rule("htr-cells-extra"), Quoted, "the end of the line",
     "It is ignored."},

    // Section lines
    {HtrOddity::kIndentedSection, Rule("htr-section-indented"), Quoted,
     "[ as the first character of a section line",
     "It is taken for a line of the section that it stands in."},
    {HtrOddity::kUnclosedSection, Rule("htr-section-unclosed"), Quoted, "] behind the name",
     "The name ends with the line."},
    {HtrOddity::kTextAfterSection, Rule("htr-section-text"), Quoted, "the end of the line",
     "It is ignored."},

    // Header
    {HtrOddity::kExtraHeaderWords, Rule("htr-value-extra"), Quoted, "a keyword and one value",
     "It is ignored: the last word of the line is the value."},
    {HtrOddity::kUnknownCalibrationUnits, Rule("htr-length-unit-unknown"), Quoted,
     "mm, cm, m, in, ft or yd, or the same in capitals", "Millimeters are taken."},
    {HtrOddity::kUnknownRotationUnits, Rule("htr-angle-unit-unknown"), Quoted, "Degrees or Radians",
     "Degrees are taken."},
    {HtrOddity::kUnknownAxis, Rule("htr-axis-unknown"), Quoted, "Y or Z", "Y is taken."},
    {HtrOddity::kRefusedHeaderValue, Rule("htr-value-refused"), Quoted, ExpectedValue, kRefused},

    // Hierarchy
    {HtrOddity::kExtraHierarchyWords, Rule("htr-name-in-words"), Quoted,
     "a name and its parent, without blanks",
     "It is ignored: the first word of the line is the name, the last one its parent."},
    {HtrOddity::kRefusedSegmentName, Rule("htr-name-taken"), QuotedAgain, ExpectedOwnName,
     kRefused},
    {HtrOddity::kParentNotFound, Rule("htr-parent-unknown"), Quoted, ExpectedParent,
     "The segment has no parent: a new skeleton goes without it and its children."},
    {HtrOddity::kSegmentCountMismatch, Rule("htr-hierarchy-count"), HierarchyLines,
     AnnouncedSegments,
     "The import takes the lines that are there; only those of [BasePosition] must be as many as "
     "announced."},

    // Base position
    {HtrOddity::kHierarchyLinkedAgain, Rule("htr-base-repeated"), "a second [BasePosition]", "one",
     "Every segment is listed once more among its parent's children; a file that does so over and "
     "over is refused."},
    {HtrOddity::kHierarchyLeftUnlinked, Rule("htr-base-links-stopped"),
     "[BasePosition] over and over", "one", "The hierarchy is linked no more."},
    {HtrOddity::kRefusedBasePosition, Rule("htr-base-name-unknown"), Quoted, ExpectedKnownSegment,
     kRefused},
    {HtrOddity::kRefusedBasePositionCount, Rule("htr-segment-count"), BaseLines, AnnouncedSegments,
     "The import refuses the file."},
});

// A count that differs is told of where it is announced.
FindingPlace PlaceToTell(const MetHtrOddity& met) {
  const bool is_count = met.oddity == HtrOddity::kSegmentCountMismatch ||
                        met.oddity == HtrOddity::kRefusedBasePositionCount;
  const auto& announced = met.parts.Value("NumSegments");
  return is_count && announced ? PlaceOf(*announced) : PlaceOf(met.cell);
}

// Of a number that comes into a scene.
void AddInfinite(const MetHtrOddity& met, FindingList& findings) {
  findings.Add(Rule("htr-number-infinite"), PlaceOf(met.cell), [&met] {
    return FindingWords{Quoted(met), ExpectedInRange(met), kCannotBeSaved};
  });
}

}  // namespace

void AddOddity(const MetHtrOddity& met, FindingList& findings) {
  if (met.oddity == HtrOddity::kNumberOutOfBounds) {
    if (MayBeSoLarge(met)) return;
    if (!IsWhole(met.field) && !IsFactor(met.field)) return AddInfinite(met, findings);
  }
  orvane::AddOddity(kRows, met, PlaceToTell(met), findings);
}

std::string ExpectedSegment(std::string_view name, const HtrParts& parts) {
  for (const SegmentLines& segment : parts.segments) {
    if (LooksLike(name, segment.name.text)) return Quote(segment.name.text);
  }
  return "a segment of the hierarchy";
}

}  // namespace orvane::htr
