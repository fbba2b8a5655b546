#include "inspect/check/trc_watcher.h"

#include <algorithm>
#include <array>
#include <utility>

#include "formats/text/number_faults.h"
#include "formats/text/numbers.h"
#include "formats/text/tokens.h"
#include "inspect/check/rates.h"
#include "inspect/check/trc_rules.h"

namespace orvane::trc {
namespace {

constexpr const char* kColumnsShift =
    "It makes no marker, and the values of its column go to the next one: all columns behind it "
    "shift.";

// Oddities of which there is the same to say wherever they stand.
struct PlainOddity {
  TRCOddity oddity;
  FindingRule rule;
  const char* found;  // null: the text itself
  const char* expected;
  const char* effect;
};

constexpr std::array<PlainOddity, 16> kPlainOddities = {{
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
    {TRCOddity::kCommentReplacesLine, Rule("trc-comment"), nullptr, "no comments",
     "The line is read as any other, and the next one is thrown away."},
    {TRCOddity::kUnknownPathType, Rule("trc-path-type-unknown"), nullptr, "3 or 4",
     "The first frame is number 1."},
    {TRCOddity::kUnknownUnits, Rule("trc-unit-unknown"), nullptr,
     "mm, cm, m, in, ft or yd, or the same in capitals, and a tab", "Millimetres are taken."},
    {TRCOddity::kUnitsEndTheLine, Rule("trc-unit-ends-line"), nullptr, "a tab behind the unit",
     "Millimetres are taken."},
    {TRCOddity::kMarkerNameLost, Rule("trc-name-lost"), nullptr, "a tab behind the name",
     "It makes no marker, and its values are not read."},
    {TRCOddity::kMarkerNameEmpty, Rule("trc-name-empty"), "an empty name", "a name",
     "It makes a marker without a name."},
    {TRCOddity::kUnnamedColumnDropped, Rule("trc-column-unnamed"), nullptr, "a name of its own",
     kColumnsShift},
    {TRCOddity::kSubHeaderIsData, Rule("trc-sub-header-missing"), nullptr,
     "the line of X1, Y1, Z1 and so on", "The frame on this line is lost."},
    {TRCOddity::kBlankFrame, Rule("trc-frame-blank"), "a blank line", "a frame",
     "It is a frame in which no marker has a position."},
    {TRCOddity::kSampleWithoutX, Rule("trc-sample-without-x"), nullptr, "nothing, as X is empty",
     "It is ignored: the marker has no position in this frame."},
}};

double TakenNumber(std::string_view cell) { return ParseDouble(cell); }

std::string WhereFieldsBelong(std::string_view line) {
  if (line.find(',') != std::string_view::npos) return "tabs between fields, not commas";
  if (line.find(';') != std::string_view::npos) return "tabs between fields, not semicolons";
  return "tabs between fields, not blanks";
}

}  // namespace

void TrcWatcher::OnOddity(TRCOddity oddity, TRCPlace place, std::string_view text) {
  if (oddity == TRCOddity::kSpareCarriageReturns && std::exchange(spare_returns_told_, true))
    return;
  const bool follows_from_lack =
      oddity == TRCOddity::kMissingNumber || oddity == TRCOddity::kUnknownPathType;
  if (follows_from_lack && LacksTabs(place)) return;
  if (AddPlain(oddity, place, text)) return;
  switch (oddity) {
    case TRCOddity::kUnknownFileType:
      file_type_ = text;
      return;
    case TRCOddity::kCoordinatesRefused:
      return AddRefusal(place, text);
    case TRCOddity::kRateTruncated:
      return AddRateCut(place, text);
    case TRCOddity::kMissingNumber:
    case TRCOddity::kUnreadableNumber:
    case TRCOddity::kNumberOutOfBounds:
    case TRCOddity::kNumberCut:
      return AddNumber(oddity, place, text);
    case TRCOddity::kMarkerNameRepeated:
      return AddRepeatedName(place, text);
    case TRCOddity::kMarkerCountMismatch:
      return AddMarkerCount(place, text);
    case TRCOddity::kShortFrame:
      return AddShortFrame(place);
    case TRCOddity::kSurplusValue:
      if (Finding* finding = Add(Rule("trc-value-extra"), place)) {
        finding->found = Quote(text);
        finding->expected =
            "the end of the line, behind " + CountOf(document_.MarkerCount(), "marker");
        finding->effect = "It is ignored, with what follows it.";
      }
      return;
    case TRCOddity::kFrameNumberSkips:
      return AddFrameNumber(place, text);
    default:
      return;
  }
}

bool TrcWatcher::AddPlain(TRCOddity oddity, TRCPlace place, std::string_view text) {
  const auto plain =
      std::find_if(kPlainOddities.begin(), kPlainOddities.end(),
                   [oddity](const PlainOddity& each) { return each.oddity == oddity; });
  if (plain == kPlainOddities.end()) return false;
  if (Finding* finding = Add(plain->rule, place)) {
    finding->found = plain->found == nullptr ? Quote(text) : plain->found;
    finding->expected = plain->expected;
    finding->effect = plain->effect;
  }
  return true;
}

bool TrcWatcher::LacksTabs(TRCPlace place) const {
  return place.line == 1 && !file_type_.empty() && place.column == 1 + file_type_.size();
}

void TrcWatcher::AddFileType(TRCPlace path_type) {
  const bool is_marked = file_type_.starts_with("\xEF\xBB\xBF");
  if (file_type_.empty() || is_marked || LacksTabs(path_type)) return;
  if (Finding* finding = Add(Rule("trc-file-type-unknown"), {path_type.line, 1, 1})) {
    finding->found = Quote(file_type_);
    finding->expected = "PathFileType";
    finding->effect = "The word does not count.";
  }
}

void TrcWatcher::AddRefusal(TRCPlace place, std::string_view coordinates) {
  has_refused_ = true;
  const bool has_tabs = !LacksTabs(place);
  if (!has_tabs) place.column = 1;
  if (Finding* finding =
          Add(has_tabs ? Rule("trc-coordinates-refused") : Rule("trc-tabs-missing"), place)) {
    finding->found = Quote(has_tabs ? coordinates : file_type_);
    finding->expected = has_tabs ? "(X/Y/Z) as the third field, and a tab behind it"
                                 : WhereFieldsBelong(file_type_);
    finding->effect = "The import refuses the file; the rest of it is not checked.";
  }
}

void TrcWatcher::AddNumber(TRCOddity oddity, TRCPlace place, std::string_view cell) {
  const bool is_frame_number = frames_ > 0 && place.field == 1;
  const bool is_whole = frames_ == 0 || is_frame_number;
  const FindingRule& rule = oddity == TRCOddity::kMissingNumber      ? Rule("trc-number-missing")
                            : oddity == TRCOddity::kUnreadableNumber ? Rule("trc-number-unreadable")
                            : oddity == TRCOddity::kNumberCut        ? Rule("trc-number-cut")
                                                              : Rule("trc-number-out-of-range");
  Finding* finding = Add(rule, place);
  if (finding == nullptr) return;
  finding->found = Quote(cell);
  finding->expected = is_whole ? "a whole number" : "a number";
  if (is_frame_number) finding->expected += ", the frame's";
  const std::string taken =
      is_whole ? FormatInt(ParseInt(cell)) : FormatShortest(TakenNumber(cell));
  const bool is_infinite = !is_whole && !FitsSinglePrecision(TakenNumber(cell));
  finding->effect =
      is_infinite
          ? "It is taken as infinite: a scene that it gets into cannot be saved."
          : taken + " is taken" + (is_frame_number ? "; only the first of a file is used." : ".");
}

void TrcWatcher::AddRateCut(TRCPlace place, std::string_view rate) {
  if (Finding* finding = Add(Rule("trc-rate-cut"), place)) {
    finding->found = Quote(rate);
    finding->expected = "a whole number";
    finding->effect = EffectOfCutRate(rate);
  }
}

void TrcWatcher::OnHeaderValue(TRCHeaderValue value, TRCPlace place, std::string_view text) {
  if (value == TRCHeaderValue::kPathType) AddFileType(place);
  parts_.values[static_cast<std::size_t>(value)] = place;
  if (value == TRCHeaderValue::kDataRate) CheckRate(place, text);
  if (value == TRCHeaderValue::kCameraRate && ParseInt(text) <= 0) {
    AddCameraRate(place, text);
  }
}

void TrcWatcher::CheckRate(TRCPlace place, std::string_view rate) {
  if (IsRate(ParseInt(rate))) return;
  if (Finding* finding = Add(Rule("trc-rate-out-of-range"), place)) {
    finding->found = Quote(rate);
    finding->expected = ExpectedRate();
    finding->effect = "The nearest rate that there is is set, unless --frame-rate keep is given.";
  }
}

void TrcWatcher::AddCameraRate(TRCPlace place, std::string_view rate) {
  if (Finding* finding = Add(Rule("trc-camera-rate"), place)) {
    finding->found = Quote(rate);
    finding->expected = "the rate of the cameras";
    finding->effect = "Nothing depends on it; a converted file tells it.";
  }
}

void TrcWatcher::OnMarker(TRCPlace place, std::string_view name) {
  fields_.emplace(name, place.column);
  parts_.markers.push_back(place);
}

void TrcWatcher::AddRepeatedName(TRCPlace place, std::string_view name) {
  if (Finding* finding = Add(Rule("trc-column-repeated"), place)) {
    finding->found = Quote(name) + " again";
    finding->expected = "a name of its own; column " +
                        FormatInt(static_cast<std::int64_t>(fields_[name])) + " has it";
    finding->effect = kColumnsShift;
  }
}

void TrcWatcher::AddMarkerCount(TRCPlace place, std::string_view announced) {
  if (Finding* finding = Add(Rule("trc-marker-count"), place)) {
    finding->found = CountOf(document_.MarkerCount(), "marker");
    finding->expected = std::string(announced) + ", as NumMarkers says";
    finding->effect = "The import takes the markers that are there.";
  }
}

void TrcWatcher::OnFrame(TRCPlace place, std::string_view number) {
  parts_.AddFrame(place);
  if (frames_++ == 0) CheckFirstFrame(place, number);
}

void TrcWatcher::CheckFirstFrame(TRCPlace place, std::string_view number) {
  const std::string_view cell = TrimTrailingSeparators(SkipSeparators(number));
  if (cell.empty() || ParseInt(cell) == document_.FirstFrame()) return;
  if (Finding* finding = Add(Rule("trc-first-frame"), place)) {
    const std::string taken = FormatInt(document_.FirstFrame());
    finding->found = Quote(number);
    finding->expected = taken + (parts_.Value(TRCHeaderValue::kFirstFrame)
                                     ? ", as OrigDataStartFrame says"
                                     : ", as the path type is neither 3 nor 4");
    finding->effect = taken + " is taken for the number of the first frame.";
  }
}

void TrcWatcher::AddFrameNumber(TRCPlace place, std::string_view number) {
  if (Finding* finding = Add(Rule("trc-frame-number"), place)) {
    finding->found = Quote(number);
    finding->expected = "the number behind that of the frame before";
    finding->effect = "The number is ignored: frames follow each other as their lines do.";
  }
}

void TrcWatcher::AddShortFrame(TRCPlace place) {
  if (Finding* finding = Add(Rule("trc-frame-short"), place)) {
    const std::size_t wanted = 2 + std::size_t{3} * document_.MarkerCount();
    finding->found = CountOf(place.field - 1, "field");
    finding->expected = FormatInt(static_cast<std::int64_t>(wanted)) + ": frame, time and " +
                        CountOf(document_.MarkerCount(), "marker");
    finding->effect = "The markers that are missing have no position in this frame.";
  }
}

}  // namespace orvane::trc
