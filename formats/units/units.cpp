#include "formats/units/units.h"

#include <array>
#include <cstddef>

namespace orvane {
namespace {

struct LengthUnit {
  std::string_view name;
  std::string_view upper_case_name;
  double to_millimetres;
  double from_millimetres;
};

// Intended: a foot counts as 25.4/12 mm and a yard as 25.4/36 mm, and the inverse factors are the
// printed digits rather than quotients; files and scenes made so far rely on these very values.
constexpr std::array<LengthUnit, 6> kLengthUnits = {{
    {"mm", "MM", 1.0, 1.0},
    {"cm", "CM", 10.0, 0.1},
    {"m", "M", 1000.0, 0.001},
    {"in", "IN", 25.4, 0.0393700787},
    {"ft", "FT", 2.1166666666666663, 0.47244094439999995},
    {"yd", "YD", 0.7055555555555555, 1.4173228331999999},
}};

struct UnitKeyword {
  std::string_view word;
  std::uint32_t code;
};

constexpr std::uint32_t kRadians = 1;

// Intended: "RADIAN" is missing, so that it reads as degrees like every unknown word.
constexpr std::array<UnitKeyword, 11> kRotationKeywords = {{
    {"Degrees", kDegrees},
    {"degrees", kDegrees},
    {"DEGREES", kDegrees},
    {"Degree", kDegrees},
    {"degree", kDegrees},
    {"DEGREE", kDegrees},
    {"Radians", kRadians},
    {"radians", kRadians},
    {"RADIANS", kRadians},
    {"Radian", kRadians},
    {"radian", kRadians},
}};

constexpr std::array<UnitKeyword, 6> kAxisKeywords = {{
    {"X", kAxisX},
    {"x", kAxisX},
    {"Y", kAxisY},
    {"y", kAxisY},
    {"Z", kAxisZ},
    {"z", kAxisZ},
}};

constexpr std::array<std::string_view, 2> kRotationNames = {"Degrees", "Radians"};
constexpr std::array<std::string_view, 3> kAxisNames = {"X", "Y", "Z"};

template <std::size_t size>
std::optional<std::uint32_t> Find(const std::array<UnitKeyword, size>& keywords,
                                  std::string_view word) {
  for (const UnitKeyword& keyword : keywords) {
    if (keyword.word == word) return keyword.code;
  }
  return std::nullopt;
}

template <std::size_t size>
std::string_view NameAt(const std::array<std::string_view, size>& names, std::uint32_t code) {
  return code < size ? names[code] : std::string_view();
}

}  // namespace

std::optional<std::uint32_t> FindCalibrationUnits(std::string_view keyword) {
  for (std::uint32_t code = 0; code < kLengthUnits.size(); ++code) {
    const LengthUnit& unit = kLengthUnits[code];
    if (keyword == unit.name || keyword == unit.upper_case_name) return code;
  }
  return std::nullopt;
}

std::optional<std::uint32_t> FindRotationUnits(std::string_view keyword) {
  return Find(kRotationKeywords, keyword);
}

std::optional<std::uint32_t> FindAxis(std::string_view keyword) {
  return Find(kAxisKeywords, keyword);
}

std::uint32_t ParseCalibrationUnits(std::string_view keyword) {
  return FindCalibrationUnits(keyword).value_or(kMillimeters);
}

std::uint32_t ParseRotationUnits(std::string_view keyword) {
  return FindRotationUnits(keyword).value_or(kDegrees);
}

std::uint32_t ParseAxis(std::string_view keyword) { return FindAxis(keyword).value_or(kAxisY); }

std::string_view CalibrationUnitsName(std::uint32_t code) {
  return code < kLengthUnits.size() ? kLengthUnits[code].name : std::string_view();
}

std::string_view RotationUnitsName(std::uint32_t code) { return NameAt(kRotationNames, code); }

std::string_view AxisName(std::uint32_t code) { return NameAt(kAxisNames, code); }

double LengthFactor(std::uint32_t from_code, std::uint32_t to_code) {
  const double to_mm = from_code < kLengthUnits.size() ? kLengthUnits[from_code].to_millimetres : 1;
  const double from_mm = to_code < kLengthUnits.size() ? kLengthUnits[to_code].from_millimetres : 1;
  return to_mm * from_mm;
}

}  // namespace orvane
