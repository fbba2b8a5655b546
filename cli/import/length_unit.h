#pragma once

#include <array>
#include <string_view>

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

}  // namespace cli
