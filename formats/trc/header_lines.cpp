#include "formats/trc/header_lines.h"

#include <optional>
#include <string_view>

#include "formats/text/numbers.h"
#include "formats/text/tokens.h"
#include "formats/trc/fields.h"
#include "formats/trc/messages.h"
#include "formats/units/units.h"

namespace orvane {
namespace {

constexpr std::string_view kFileType = "PathFileType";
constexpr std::string_view kCoordinates = "(X/Y/Z)";
constexpr std::string_view kUnnamed = "Unnamed";
constexpr int kColumnsPerMarker = 3;

std::int32_t TakeInt(TRCFields& fields, TRCHeaderValue value, const TRCOddities& oddities) {
  const std::size_t number = fields.Number();
  const std::string_view field = fields.Take();
  oddities.TellHeaderValue(value, number, field);
  oddities.CheckWholeNumber(number, field);
  return ParseInt(field);
}

// Intended: a rate is a whole number; scenes made so far rely on 59.94 being 59.
std::int32_t TakeRate(TRCFields& fields, TRCHeaderValue value, const TRCOddities& oddities) {
  const std::size_t number = fields.Number();
  const std::string_view field = fields.Take();
  oddities.TellHeaderValue(value, number, field);
  oddities.CheckRate(number, field);
  return ParseInt(field);
}

// Intended: where no tab follows, the line break belongs to the word, which is thereby unknown;
// unknown words are millimetres.
std::int32_t TakeUnits(TRCFields& fields, const TRCOddities& oddities) {
  const std::size_t number = fields.Number();
  const bool carries_break = fields.CarriesBreak();
  const std::string_view field = fields.Take();
  oddities.TellHeaderValue(TRCHeaderValue::kUnits, number, field);
  const std::optional<std::uint32_t> code = FindCalibrationUnits(field);
  if (code && !carries_break) return static_cast<std::int32_t>(*code);
  oddities.Report(code ? TRCOddity::kUnitsEndTheLine : TRCOddity::kUnknownUnits, number, field);
  return static_cast<std::int32_t>(kMillimeters);
}

void AddNamedMarker(std::string_view name, std::size_t field, TRCDocument& document,
                    const TRCOddities& oddities) {
  // Intended: a repeated name makes no marker, and the values of its column go to the next one.
  const TRCMarker* marker = document.AddMarker(TRCMarker(std::string(name)));
  if (marker == nullptr) return oddities.Report(TRCOddity::kMarkerNameRepeated, field, name);
  oddities.ReportIf(name.empty(), TRCOddity::kMarkerNameEmpty, field, name);
  oddities.TellMarker(field, name);
}

}  // namespace

std::string ReadFileTypeLine(const Line& line, TRCHeader& header, const TRCOddities& oddities) {
  TRCFields fields(line);
  const std::string_view file_type = fields.Take();
  oddities.ReportIf(file_type != kFileType, TRCOddity::kUnknownFileType, 1, file_type);

  const std::size_t path_type_number = fields.Number();
  const std::string_view path_type = fields.Get();
  header.path_type = TakeInt(fields, TRCHeaderValue::kPathType, oddities);
  const bool is_known =
      header.path_type == kFirstFrameInData || header.path_type == kFirstFrameInHeader;
  oddities.ReportIf(!is_known, TRCOddity::kUnknownPathType, path_type_number, path_type);

  if (fields.Get() == kCoordinates && !fields.CarriesBreak()) return {};
  oddities.Report(TRCOddity::kCoordinatesRefused, fields.Number(), fields.Get());
  return kIncompatibleCoordinates;
}

void ReadHeaderValues(const Line& line, TRCHeader& header, TRCDocument& document,
                      const TRCOddities& oddities) {
  TRCFields fields(line);
  document.SetDataRate(TakeRate(fields, TRCHeaderValue::kDataRate, oddities));
  document.SetCameraRate(TakeRate(fields, TRCHeaderValue::kCameraRate, oddities));
  document.SetNumFrames(TakeInt(fields, TRCHeaderValue::kNumFrames, oddities));
  header.announced_markers_place = oddities.PlaceOf(fields.Number(), fields.Get());
  header.announced_markers = TakeInt(fields, TRCHeaderValue::kNumMarkers, oddities);
  document.SetUnits(TakeUnits(fields, oddities));
  if (header.path_type != kFirstFrameInHeader) return;
  fields.Drop();  // the data rate of the source recording
  document.SetFirstFrame(TakeInt(fields, TRCHeaderValue::kFirstFrame, oddities));
}

std::string ReadMarkerNames(const Line& line, const TRCHeader& header, bool include_unnamed,
                            TRCDocument& document, const TRCOddities& oddities) {
  TRCFields fields(line);
  fields.Drop(2);  // the headings of frame number and time
  // Intended: a last name that ends the line is lost, since a name is one only before a tab.
  while (fields.HasTab()) {
    const std::size_t number = fields.Number();
    const std::string_view name = fields.Get();
    if (include_unnamed || !name.starts_with(kUnnamed)) {
      AddNamedMarker(name, number, document, oddities);
    } else {
      oddities.Report(TRCOddity::kUnnamedColumnDropped, number, name);
    }
    fields.Drop(kColumnsPerMarker);
  }
  oddities.ReportIf(!fields.AtEnd(), TRCOddity::kMarkerNameLost, fields.Number(), fields.Get());

  if (std::int64_t{document.MarkerCount()} == header.announced_markers) return {};
  const std::string announced = FormatInt(header.announced_markers);
  oddities.ReportAt(
      header.announced_markers_place,
      include_unnamed ? TRCOddity::kMarkerCountRefused : TRCOddity::kMarkerCountMismatch,
      announced);
  if (!include_unnamed) return {};
  return kIncorrectMarkerCount;
}

void InspectSubHeader(const Line& line, const TRCOddities& oddities) {
  const std::string_view field = TRCFields(line).Get();
  const std::string_view cell = SkipSeparators(field);
  const bool is_number = ReadDouble(cell.data(), cell.data() + cell.size()).end != cell.data();
  oddities.ReportIf(is_number, TRCOddity::kSubHeaderIsData, 1, field);
}

}  // namespace orvane
