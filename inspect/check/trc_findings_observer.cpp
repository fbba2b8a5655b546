#include "inspect/check/trc_findings_observer.h"

#include <array>
#include <cstdint>
#include <utility>

#include "formats/text/number_faults.h"
#include "formats/text/numbers.h"
#include "formats/text/tokens.h"
#include "formats/trc/line_rules.h"
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

// What is told of rows that do not have the columns which the names ask for.
constexpr std::array kFollowFromMisfit = {Rule("trc-frame-short"), Rule("trc-value-extra"),
                                          Rule("trc-sample-without-x"), Rule("trc-number-missing")};

// Whether it is told of names, whatever becomes of their line.
bool IsOfName(std::string_view code) {
  return code == Rule("trc-name-encoding").code || code == Rule("trc-name-with-blank").code;
}

// Whether a column with a name makes no marker.
bool DropsColumn(TRCOddity oddity) {
  return oddity == TRCOddity::kMarkerNameLost || oddity == TRCOddity::kUnnamedColumnDropped ||
         oddity == TRCOddity::kMarkerNameRepeated;
}

}  // namespace

void TrcFindingsObserver::OnOddity(TRCOddity oddity, TRCPlace place, std::string_view text) {
  if (DropsColumn(oddity)) columns_.AddWithoutMarker(place.field);
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
      return columns_.AddRepeated(place, text);
    case TRCOddity::kUnknownUnits:
      return AddUnknownUnit(place, text);
    case TRCOddity::kUnreadableNumber:
      if (commas_.Take(text, place)) return;  // told once for all
      break;
    default:
      break;
  }
  AddOddity({oddity, place, text, document_.MarkerCount(), frames_ > 0}, FindingsAt(place));
}

bool TrcFindingsObserver::FollowsFromLayout(TRCOddity oddity, TRCPlace place) const {
  if (parts_.layout.frame_of_tabs) {
    const std::size_t line = parts_.layout.frame_of_tabs->line;
    if (place.line == line) return true;
    if (oddity == TRCOddity::kFrameNumberSkips && place.line == line + 1) return true;
  }
  if (!parts_.layout.misplaced_name) return false;
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
  if (held_) {
    if (blank_end_.Begin() == held_->line) {
      DropHeld();
    } else {
      TakeHeld();
    }
  }
  LeaveLongLine();
  samples_.Finish(document_);
  parts_.widths = widths_.Sum();
  parts_.named_fields = columns_.NamedFields(parts_.widths.last_value);
  columns_.AddRepeatedTo(findings_, parts_.widths.last_value);
  AddFindingsOfFrames();
  commas_.AddTo(findings_, Rule("trc-decimal-commas"));
  const bool are_numbers_odd = findings_.Totals().count("trc-frame-number") > 0;
  if (!are_numbers_odd && !parts_.misfit) times_.AddTo(findings_);
}

void TrcFindingsObserver::AddFindingsOfFrames() {
  if (frames_ > 0 && !parts_.layout.misplaced_name) {
    parts_.misfit = FieldsThatMisfit(parts_.widths, parts_.named_fields);
  }
  if (parts_.misfit) {
    for (const FindingRule& rule : kFollowFromMisfit) in_frames_.Remove(rule);
  }
  findings_.Append(in_frames_);
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
  columns_.AddMarker(place, name);
  parts_.markers.push_back(place);
  CheckName(place, name);
}

void TrcFindingsObserver::CheckName(TRCPlace place, std::string_view name) {
  if (!IsUtf8(name)) {
    FindingsAt(place).Add(Rule("trc-name-encoding"), place, [name] {
      return FindingWords{Quote(name), "a name in ASCII or UTF-8",
                          "Its bytes are kept, and most programs will not show them as letters."};
    });
  }
  if (parts_.layout.misplaced_name || name.find_first_of(" \v\f\r") == std::string_view::npos)
    return;
  FindingsAt(place).Add(Rule("trc-name-with-blank"), place, [name] {
    return FindingWords{Quote(name), "a name of one word",
                        "It is kept; in a converted file it reads as several names."};
  });
}

void TrcFindingsObserver::OnHeaderLine(std::size_t number, const Line& line) {
  parts_.layout.TakeHeaderLine(number, line);
  if (number == kPerhapsBlankLine || line.number != long_line_) LeaveLongLine();
  const bool is_of_columns = number == kMarkerNamesLine || number == kSubHeaderLine;
  if (is_of_columns && !line.ends_with_break) long_line_ = line.number;
  if (!IsFrame(line, number)) TakeOtherLine(line);
}

// The last piece of names or headings may be the frame of tabs, from which all else that is told
// of that line follows.
void TrcFindingsObserver::LeaveLongLine() {
  const auto& tabs = parts_.layout.frame_of_tabs;
  if (tabs && tabs->line == long_line_) {
    columns_.ForgetRepeated(long_line_);
    const auto totals = in_long_line_.Totals();
    for (const auto& [code, total] : totals) {
      if (!IsOfName(code)) in_long_line_.Remove({code, total.severity});
    }
  }
  findings_.Append(in_long_line_);
  in_long_line_ = {};
  long_line_ = 0;
}

void TrcFindingsObserver::OnLineThrownAway(const Line& line) { TakeOtherLine(line); }

// Where a comment takes the place of a line, one of the header comes to stand where frames begin.
void TrcFindingsObserver::TakeOtherLine(const Line& line) {
  if (lines_ >= kPerhapsBlankLine && IsFrame(line, lines_)) {
    TakeRow(line, WidthOf(line.text));
  } else {
    ++lines_;
  }
}

void TrcFindingsObserver::TakeRow(const Line& line, const TRCRowWidth& width) {
  ++lines_;
  widths_.Take(line, width);
  blank_end_.Take(line.number, width.last_value == 0);
  if (!held_ || line.number == held_->line || blank_end_.Begin() == held_->line) return;
  TakeHeld();
}

void TrcFindingsObserver::OnFrame(TRCPlace place, const TRCRow& row) {
  TakeRow(row.line, row.width);
  if (!held_ && MayBeBehindFrames(row)) Hold(place.line);
  parts_.AddFrame(place);
  samples_.TakeFrame(document_, row.coordinates);
  CheckTime(place, row);
  const std::string_view cell = TrimTrailingSeparators(SkipSeparators(row.number));
  if (frames_ == 0) parts_.first_number = cell;
  parts_.last_number = cell;
  CountFrame(place);
}

void TrcFindingsObserver::CheckTime(TRCPlace place, const TRCRow& row) {
  const std::string_view line = row.line.text;
  if (row.number.size() == line.size()) return;
  times_.Take(line.substr(row.number.size() + 1), frames_, {place.line, place.column});
}

void TrcFindingsObserver::CountFrame(TRCPlace place) {
  ++frames_;
  if (static_cast<std::int64_t>(frames_) != document_.NumFrames()) return;
  first_line_behind_ = place.line + 1;
  widths_.SetFirstLineBehind(first_line_behind_);
  findings_.SetFirstLineBehind(first_line_behind_);
  in_frames_.SetFirstLineBehind(first_line_behind_);
}

// A line whose first piece holds something may be one of them by another piece.
bool TrcFindingsObserver::MayBeBehindFrames(const TRCRow& row) const {
  const std::int64_t announced = document_.NumFrames();
  if (announced <= 0 || static_cast<std::int64_t>(frames_) < announced) return false;
  return blank_end_.Begin() == row.line.number || !row.line.ends_with_break;
}

void TrcFindingsObserver::Hold(std::size_t line) {
  held_ = Held{line, frames_, parts_.last_number, commas_, times_, {}};
  held_->findings.SetFirstLineBehind(first_line_behind_);
}

void TrcFindingsObserver::TakeHeld() {
  in_frames_.Append(held_->findings);
  held_.reset();
}

void TrcFindingsObserver::DropHeld() {
  parts_.blank_end = TRCPlace{held_->line, 1, 0};
  parts_.KeepFrames(held_->frames);
  parts_.last_number = std::move(held_->last_number);
  commas_ = std::move(held_->commas);
  times_ = held_->times;
  held_.reset();
}

FindingList& TrcFindingsObserver::FindingsAt(TRCPlace place) {
  if (held_) return held_->findings;
  if (frames_ > 0) return in_frames_;
  return place.line == long_line_ ? in_long_line_ : findings_;
}

}  // namespace orvane::trc
