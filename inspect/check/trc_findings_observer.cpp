#include "inspect/check/trc_findings_observer.h"

#include <cstdint>
#include <string>
#include <utility>

#include "formats/text/number_faults.h"
#include "formats/text/numbers.h"
#include "formats/text/tokens.h"
#include "formats/units/units.h"
#include "inspect/check/rates.h"
#include "inspect/check/text_encoding.h"
#include "inspect/check/trc_oddities.h"
#include "inspect/check/trc_row_fit.h"
#include "inspect/check/trc_rules.h"

namespace orvane::trc {
namespace {

constexpr std::size_t kDataRateField = 1;

std::string WhereFieldsBelong(std::string_view line) {
  if (line.starts_with('#')) return "PathFileType, and no comment before it";
  if (line.find(',') != std::string_view::npos) return "tabs between fields, not commas";
  if (line.find(';') != std::string_view::npos) return "tabs between fields, not semicolons";
  return "tabs between fields, not blanks";
}

// Whether a column with a name makes no marker.
bool DropsColumn(TRCOddity oddity) {
  return oddity == TRCOddity::kMarkerNameLost || oddity == TRCOddity::kUnnamedColumnDropped ||
         oddity == TRCOddity::kMarkerNameRepeated;
}

}  // namespace

void TrcFindingsObserver::OnOddity(TRCOddity oddity, TRCPlace place, std::string_view text) {
  if (DropsColumn(oddity) && place.field <= widths_.last_value) parts_.AddColumn(place.field);
  if (FollowsFromLayout(oddity, place)) return;
  switch (oddity) {
    case TRCOddity::kSpareCarriageReturns:
      if (std::exchange(has_spare_returns_, true)) return;  // told once for all lines
      break;
    case TRCOddity::kMissingNumber:
    case TRCOddity::kUnknownPathType:
      if (LacksTabs(place)) return;  // from which it follows
      break;
    case TRCOddity::kRateTruncated:
      return AddRateCut(place, text);
    case TRCOddity::kUnknownFileType:
      file_type_ = text;
      return;
    case TRCOddity::kCoordinatesRefused:
      return AddRefusal(place, text);
    case TRCOddity::kMarkerNameRepeated:
      return AddRepeatedName(place, text);
    case TRCOddity::kUnknownUnits:
      return AddUnknownUnit(place, text);
    case TRCOddity::kUnreadableNumber:
      if (commas_.Take(text, place)) return;  // told once for all
      break;
    default:
      break;
  }
  AddOddity({oddity, place, text, document_.MarkerCount(), frames_ > 0}, findings_);
}

bool TrcFindingsObserver::FollowsFromLayout(TRCOddity oddity, TRCPlace place) const {
  if (layout_.frame_of_tabs) {
    const std::size_t line = layout_.frame_of_tabs->line;
    if (place.line == line) return true;
    if (oddity == TRCOddity::kFrameNumberSkips && place.line == line + 1) return true;
  }
  if (StandsBehindFrames(place)) return true;
  if (parts_.misfit && FollowsFromMisfit(oddity)) return true;
  if (!layout_.misplaced_name) return false;
  switch (oddity) {
    case TRCOddity::kMarkerNameLost:
    case TRCOddity::kUnnamedColumnDropped:
    case TRCOddity::kMarkerNameRepeated:
    case TRCOddity::kMarkerNameEmpty:
    case TRCOddity::kMarkerCountMismatch:
    case TRCOddity::kShortFrame:
    case TRCOddity::kSurplusValue:
    case TRCOddity::kSampleWithoutX:
      return true;
    default:
      return false;
  }
}

bool TrcFindingsObserver::FollowsFromMisfit(TRCOddity oddity) {
  return oddity == TRCOddity::kShortFrame || oddity == TRCOddity::kSurplusValue ||
         oddity == TRCOddity::kSampleWithoutX || oddity == TRCOddity::kMissingNumber;
}

bool TrcFindingsObserver::StandsBehindFrames(TRCPlace place) const {
  return parts_.frames_before_end && place.line >= widths_.blank_end->line;
}

bool TrcFindingsObserver::LacksTabs(TRCPlace place) const {
  return place.line == 1 && !file_type_.empty() && place.column == 1 + file_type_.size();
}

void TrcFindingsObserver::AddRefusal(TRCPlace place, std::string_view coordinates) {
  has_refused_ = true;
  constexpr const char* kRefused = "The import refuses the file; the rest of it is not checked.";
  if (LacksTabs(place)) {
    return findings_.Add(Rule("trc-tabs-missing"), FindingPlace{place.line, 1},
                         {Quote(file_type_), WhereFieldsBelong(file_type_), kRefused});
  }
  findings_.Add(Rule("trc-coordinates-refused"), place,
                {Quote(coordinates), "(X/Y/Z) as the third field, and a tab behind it", kRefused});
}

void TrcFindingsObserver::AddRepeatedName(TRCPlace place, std::string_view name) {
  const bool is_blank = place.field > widths_.last_value;
  findings_.Add(
      is_blank ? Rule("trc-column-repeated-blank") : Rule("trc-column-repeated"), place, [&] {
        const auto column = static_cast<std::int64_t>(columns_[name]);
        return FindingWords{
            Quote(name) + " again", "a name of its own; column " + FormatInt(column) + " has it",
            is_blank ? "It makes no marker; neither it nor a column behind it holds a value."
                     : kColumnsShift};
      });
}

// An unknown unit means millimeters: these are meant.
void TrcFindingsObserver::AddUnknownUnit(TRCPlace place, std::string_view unit) {
  const std::string_view trimmed = TrimTrailingSeparators(SkipSeparators(unit));
  if (trimmed == unit || FindCalibrationUnits(trimmed) != kMillimeters) {
    return AddOddity({TRCOddity::kUnknownUnits, place, unit}, findings_);
  }
  findings_.Add(Rule("trc-unit-blanks"), place,
                {Quote(unit), "no blanks beside the unit", "Millimeters are taken, as it says."});
}

void TrcFindingsObserver::Finish() {
  commas_.AddTo(findings_, Rule("trc-decimal-commas"));
  const bool are_numbers_odd = findings_.Totals().count("trc-frame-number") > 0;
  if (!are_numbers_odd && !parts_.misfit) times_.AddTo(findings_);
}

void TrcFindingsObserver::OnHeaderValue(TRCHeaderValue value, TRCPlace place,
                                        std::string_view text) {
  if (value == TRCHeaderValue::kPathType) CheckFileType(place);
  parts_.values[static_cast<std::size_t>(value)] = place;
  if (value == TRCHeaderValue::kDataRate) times_.SetRate(ParseDouble(text));
  if (value == TRCHeaderValue::kDataRate) CheckRate(place, text);
  if (value == TRCHeaderValue::kCameraRate) CheckCameraRate(place, text);
}

void TrcFindingsObserver::CheckFileType(TRCPlace path_type) {
  const bool is_marked = file_type_.starts_with("\xEF\xBB\xBF");
  if (file_type_.empty() || is_marked || LacksTabs(path_type)) return;
  findings_.Add(Rule("trc-file-type-unknown"), FindingPlace{path_type.line, 1},
                {Quote(file_type_), "PathFileType", "The word does not count."});
}

void TrcFindingsObserver::CheckRate(TRCPlace place, std::string_view rate) {
  const std::string_view cell = TrimTrailingSeparators(SkipSeparators(rate));
  if (!IsRate(ParseInt(rate))) {
    return findings_.Add(Rule("trc-rate-out-of-range"), place, WordsOfRateOutOfRange(rate));
  }
  if (LastsWholeTicks(ParseInt(rate)) || FaultOfWholeNumber(cell) != NumberFault::kNone) return;
  findings_.Add(Rule("trc-rate-inexact"), place, WordsOfInexactRate(cell));
}

void TrcFindingsObserver::AddRateCut(TRCPlace place, std::string_view rate) {
  if (place.field == kDataRateField) {
    return findings_.Add(Rule("trc-rate-cut"), place,
                         {.found = Quote(rate),
                          .expected = "a whole number",
                          .effect = EffectOfCutRate(rate),
                          .in_scene = EffectOfRateInHost(rate)});
  }
  findings_.Add(
      Rule("trc-camera-rate-cut"), place,
      {Quote(rate), "a whole number",
       FormatInt(ParseInt(rate)) + " is taken: nothing depends on it; a converted file tells it."});
}

void TrcFindingsObserver::CheckCameraRate(TRCPlace place, std::string_view rate) {
  if (ParseInt(rate) > 0) return;
  findings_.Add(Rule("trc-camera-rate"), place,
                {Quote(rate), "the rate of the cameras",
                 "Nothing depends on it; a converted file tells it."});
}

void TrcFindingsObserver::OnMarker(TRCPlace place, std::string_view name) {
  columns_.emplace(name, place.column);
  parts_.markers.push_back(place);
  if (!name.empty() || place.field <= widths_.last_value) parts_.AddColumn(place.field);
  CheckName(place, name);
}

void TrcFindingsObserver::CheckName(TRCPlace place, std::string_view name) {
  if (!IsUtf8(name)) {
    findings_.Add(Rule("trc-name-encoding"), place, [name] {
      return FindingWords{Quote(name), "a name in ASCII or UTF-8",
                          "Its bytes are kept, and most programs will not show them as letters."};
    });
  }
  if (layout_.misplaced_name || name.find_first_of(" \v\f\r") == std::string_view::npos) return;
  findings_.Add(Rule("trc-name-with-blank"), place, [name] {
    return FindingWords{Quote(name), "a name of one word",
                        "It is kept; in a converted file it reads as several names."};
  });
}

void TrcFindingsObserver::OnFrame(TRCPlace place, const TRCRow& row) {
  const std::string_view number = row.number;
  if (frames_ > 0 && widths_.blank_end && place.line == widths_.blank_end->line &&
      document_.NumFrames() > 0 && static_cast<std::int64_t>(frames_) >= document_.NumFrames()) {
    parts_.frames_before_end = frames_;
  }
  if (StandsBehindFrames(place)) return;
  if (frames_ == 0 && !layout_.misplaced_name) {
    parts_.misfit = FieldsThatMisfit(widths_, parts_.named_fields);
  }
  parts_.AddFrame(place);
  const auto end = static_cast<std::size_t>(number.data() + number.size() - parts_.bytes.data());
  if (end < parts_.bytes.size() && parts_.bytes[end] == '\t') {
    times_.Take(parts_.bytes.substr(end + 1), frames_, {place.line, place.column});
  }
  const std::string_view cell = TrimTrailingSeparators(SkipSeparators(number));
  if (frames_++ == 0) parts_.first_number = cell;
  if (static_cast<std::int64_t>(frames_) == document_.NumFrames()) {
    findings_.SetFirstLineBehind(place.line + 1);
  }
  parts_.last_number = cell;
}

}  // namespace orvane::trc
