#include "formats/trc/data_line_inspector.h"

#include <algorithm>

#include "formats/text/numbers.h"
#include "formats/text/tokens.h"

namespace orvane {
namespace {

constexpr std::size_t kColumnsBeforeMarkers = 2;
constexpr std::size_t kColumnsPerMarker = 3;

bool IsBlank(std::string_view field) { return SkipSeparators(field).empty(); }

}  // namespace

void TRCDataLineInspector::Inspect(const Line& line, std::size_t marker_count) {
  if (line.text.empty()) return oddities_.ReportLine(TRCOddity::kBlankFrame, line.text);
  TRCFields fields(line);
  fields.Drop();  // the frame number
  fields.Drop();  // the time
  for (std::size_t marker = 0; marker < marker_count && !fields.AtEnd(); ++marker) {
    InspectSample(fields);
  }
  InspectRest(fields);

  const std::size_t columns =
      1 + static_cast<std::size_t>(std::count(line.text.begin(), line.text.end(), '\t'));
  const bool is_short = columns < kColumnsBeforeMarkers + kColumnsPerMarker * marker_count;
  oddities_.ReportIf(is_short, TRCOddity::kShortFrame, columns + 1,
                     line.text.substr(line.text.size()));
}

void TRCDataLineInspector::InspectFrameNumber(std::string_view field) {
  oddities_.CheckWholeNumber(1, field);
  const std::int64_t number = ParseInt(field);
  const bool skips = previous_number_ && number != *previous_number_ + 1;
  oddities_.ReportIf(skips, TRCOddity::kFrameNumberSkips, 1, field);
  previous_number_ = number;
}

void TRCDataLineInspector::InspectSample(TRCFields& fields) {
  const bool is_dropout = fields.Get().empty();
  for (std::size_t coordinate = 0; coordinate < kColumnsPerMarker; ++coordinate) {
    const std::size_t number = fields.Number();
    const std::string_view field = fields.Take();
    if (!is_dropout) {
      oddities_.CheckNumber(number, field);
    } else {
      oddities_.ReportIf(!IsBlank(field), TRCOddity::kSampleWithoutX, number, field);
    }
  }
}

void TRCDataLineInspector::InspectRest(TRCFields& fields) {
  for (; !fields.AtEnd(); fields.Drop()) {
    if (IsBlank(fields.Get())) continue;
    return oddities_.Report(TRCOddity::kSurplusValue, fields.Number(), fields.Get());
  }
}

}  // namespace orvane
