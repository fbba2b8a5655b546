#include "formats/htr/header_fields.h"

#include <algorithm>
#include <array>

#include "formats/htr/messages.h"
#include "formats/text/number_faults.h"
#include "formats/text/numbers.h"
#include "formats/units/units.h"

namespace orvane {
namespace {

// One line of the header on its way into the document.
struct Field {
  std::string_view keyword;
  std::string_view value;
  HtrDocument& document;
  std::int64_t& segments_awaited;
  const HtrOddities& oddities;
};

std::string Refuse(const Field& field) {
  field.oddities.Report(HtrOddity::kRefusedHeaderValue, field.value, field.keyword);
  return IncompatibleHeader(field.keyword);
}

// For keywords whose value is checked and not stored.
template <typename... Words>
std::string Require(const Field& field, Words... accepted) {
  const bool matches = ((field.value == accepted) || ...);
  return matches ? std::string() : Refuse(field);
}

std::int32_t Int(const Field& field) {
  field.oddities.CheckWholeNumber(field.value, field.keyword);
  return ParseInt(field.value);
}

std::string ReadFileType(const Field& field) { return Require(field, "HTR", "Htr", "htr"); }

std::string ReadDataType(const Field& field) { return Require(field, "HTRS", "Htrs", "htrs"); }

std::string ReadFileVersion(const Field& field) { return Require(field, "1"); }

std::string ReadNumSegments(const Field& field) {
  field.segments_awaited = Int(field);
  return {};
}

std::string ReadNumFrames(const Field& field) {
  const std::int32_t count = Int(field);
  const bool is_told = FaultOfWholeNumber(field.value) == NumberFault::kOutOfBounds;
  field.oddities.ReportIf(count < 0 && !is_told, HtrOddity::kNumberOutOfBounds, field.value,
                          field.keyword);
  field.document.SetNumFrames(static_cast<std::uint32_t>(std::max(count, 0)));
  return {};
}

std::string ReadDataFrameRate(const Field& field) {
  field.document.SetDataFrameRate(Int(field));
  return {};
}

std::string ReadEulerRotationOrder(const Field& field) { return Require(field, "ZYX"); }

std::string ReadCalibrationUnits(const Field& field) {
  field.oddities.ReportIf(!FindCalibrationUnits(field.value), HtrOddity::kUnknownCalibrationUnits,
                          field.value, field.keyword);
  field.document.SetCalibrationUnits(ParseCalibrationUnits(field.value));
  return {};
}

std::string ReadRotationUnits(const Field& field) {
  field.oddities.ReportIf(!FindRotationUnits(field.value), HtrOddity::kUnknownRotationUnits,
                          field.value, field.keyword);
  field.document.SetRotationUnits(ParseRotationUnits(field.value));
  return {};
}

// Intended: only X is refused; an unknown word passes as Y.
std::string ReadGlobalAxisofGravity(const Field& field) {
  field.oddities.ReportIf(!FindAxis(field.value), HtrOddity::kUnknownAxis, field.value,
                          field.keyword);
  const std::uint32_t axis = ParseAxis(field.value);
  field.document.SetGlobalAxisofGravity(axis);
  return axis == kAxisX ? Refuse(field) : std::string();
}

// Intended: checked and not stored, as the document's axis is Y already.
std::string ReadBoneLengthAxis(const Field& field) { return Require(field, "Y"); }

std::string ReadScaleFactor(const Field& field) {
  field.oddities.CheckNumber(field.value, field.keyword);
  field.document.SetScaleFactor(ParseDouble(field.value));
  return {};
}

struct HeaderKeyword {
  std::string_view name;
  std::string (*read)(const Field&);
};

constexpr std::array<HeaderKeyword, 12> kHeaderKeywords = {{
    {"FileType", ReadFileType},
    {"DataType", ReadDataType},
    {"FileVersion", ReadFileVersion},
    {"NumSegments", ReadNumSegments},
    {"NumFrames", ReadNumFrames},
    {"DataFrameRate", ReadDataFrameRate},
    {"EulerRotationOrder", ReadEulerRotationOrder},
    {"CalibrationUnits", ReadCalibrationUnits},
    {"RotationUnits", ReadRotationUnits},
    {"GlobalAxisofGravity", ReadGlobalAxisofGravity},
    {"BoneLengthAxis", ReadBoneLengthAxis},
    {"ScaleFactor", ReadScaleFactor},
}};

}  // namespace

std::string ReadHeaderField(std::string_view keyword, std::string_view value, HtrDocument& document,
                            std::int64_t& segments_awaited, const HtrOddities& oddities) {
  for (const HeaderKeyword& known : kHeaderKeywords) {
    if (keyword == known.name) {
      return known.read({keyword, value, document, segments_awaited, oddities});
    }
  }
  oddities.Report(HtrOddity::kUnknownHeaderKeyword, keyword);
  return {};
}

}  // namespace orvane
