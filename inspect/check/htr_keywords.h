#pragma once

#include <array>
#include <string_view>

// What the header of an HTR file may say.

namespace orvane::htr {

struct Keyword {
  std::string_view name;
  std::string_view values;   // that are understood, in words
  std::string_view without;  // what is taken when the keyword is missing
  bool matters = false;      // whether the import may go wrong without it
};

inline constexpr std::array<Keyword, 12> kKeywords = {{
    {"FileType", "HTR, Htr or htr", "It is not needed.", false},
    {"DataType", "HTRS, Htrs or htrs", "It is not needed.", false},
    {"FileVersion", "1", "It is not needed.", false},
    {"NumSegments", "a whole number", "0 is taken, and lines in [BasePosition] are refused.", true},
    {"NumFrames", "a whole number", "0 is taken.", true},
    {"DataFrameRate", "a whole number", "60 is taken.", true},
    {"EulerRotationOrder", "ZYX", "ZYX is taken.", false},
    {"CalibrationUnits", "mm, cm, m, in, ft or yd", "Millimetres are taken.", true},
    {"RotationUnits", "Degrees or Radians", "Degrees are taken.", true},
    {"GlobalAxisofGravity", "Y or Z", "Y is taken.", false},
    {"BoneLengthAxis", "Y", "Y is taken.", false},
    {"ScaleFactor", "1", "1 is taken.", false},
}};

// The index in kKeywords; its size for any other word.
constexpr std::size_t KeywordIndex(std::string_view name) {
  std::size_t index = 0;
  while (index < kKeywords.size() && kKeywords[index].name != name) ++index;
  return index;
}

}  // namespace orvane::htr
