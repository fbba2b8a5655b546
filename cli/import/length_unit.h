#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

// The units of length that flags take.

namespace cli {

struct LengthUnit {
  const char* name;
  double millimeters;
};

inline constexpr std::array<LengthUnit, 5> kLengthUnits = {
    {{"mm", 1.0}, {"cm", 10.0}, {"m", 1000.0}, {"in", 25.4}, {"ft", 304.8}}};

// Null when there is none of that name.
constexpr const LengthUnit* FindLengthUnit(std::string_view name) {
  for (const LengthUnit& unit : kLengthUnits) {
    if (name == unit.name) return &unit;
  }
  return nullptr;
}

inline std::vector<std::string> LengthUnitNames() {
  std::vector<std::string> names;
  names.reserve(kLengthUnits.size());
  for (const LengthUnit& unit : kLengthUnits) names.emplace_back(unit.name);
  return names;
}

}  // namespace cli
