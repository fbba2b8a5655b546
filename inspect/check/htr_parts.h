#pragma once

#include <array>
#include <cassert>
#include <cstddef>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "formats/htr/read_observer.h"
#include "inspect/check/findings.h"

// What the header of an HTR file may say, and where the parts of a file stand, as far as it was
// read. Lines and columns count from 1, and texts lie in the bytes of the file, which must outlive
// them; nothing fails but for want of memory.

namespace orvane::htr {

// What a line of the header may say.
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
    {"NumSegments", "a whole number",
     "0 is taken for NumSegments, and lines in [BasePosition] are refused.", true},
    {"NumFrames", "a whole number", "0 is taken for NumFrames.", true},
    {"DataFrameRate", "a whole number", "60 is taken for the rate.", true},
    {"EulerRotationOrder", "ZYX", "ZYX is taken.", false},
    {"CalibrationUnits", "mm, cm, m, in, ft or yd", "Millimeters are taken.", true},
    {"RotationUnits", "Degrees or Radians", "Degrees are taken.", true},
    {"GlobalAxisofGravity", "Y or Z", "Y is taken.", false},
    {"BoneLengthAxis", "Y", "Y is taken.", false},
    {"ScaleFactor", "1", "1 is taken.", false},
}};

// The index in kKeywords; its size for any other word.
[[nodiscard]] constexpr std::size_t KeywordIndex(std::string_view name) {
  std::size_t index = 0;
  while (index < kKeywords.size() && kKeywords[index].name != name) ++index;
  return index;
}

struct SegmentLines {
  HtrCell name;
  HtrCell parent;
  std::size_t base_section = 0;     // the number of the last one with a line for it; 0 for none
  std::optional<HtrCell> motion{};  // the name of the last section of it
  std::size_t frames = 0;           // in all of them
};

struct HtrParts {
  std::optional<HtrCell> header;  // name of the first such section, and so on
  std::optional<HtrCell> hierarchy;
  std::optional<HtrCell> base_position;
  std::optional<HtrCell> motion;  // of a segment
  bool has_end = false;

  std::size_t base_sections = 0;
  std::size_t base_lines = 0;
  std::size_t linked_segments = 0;  // that the last base-position section has found

  std::array<std::optional<HtrCell>, kKeywords.size()> values;  // the last of each keyword

  std::vector<SegmentLines> segments;  // in the document's order
  std::unordered_map<std::string_view, std::size_t> segment_by_name;

  std::string_view bytes;  // the whole file

  // The place behind the last byte.
  [[nodiscard]] HtrCell End() const {
    const FindingPlace end = EndOf(bytes);
    return {{}, end.line, end.column};
  }

  // Null when there is no such segment. It stays where it is until the next one is added.
  [[nodiscard]] SegmentLines* Find(std::string_view name) {
    const auto found = segment_by_name.find(name);
    return found == segment_by_name.end() ? nullptr : &segments[found->second];
  }
  [[nodiscard]] const SegmentLines* Find(std::string_view name) const {
    const auto found = segment_by_name.find(name);
    return found == segment_by_name.end() ? nullptr : &segments[found->second];
  }

  // The last value of a keyword. REQUIRES: `keyword` is one of kKeywords.
  [[nodiscard]] const std::optional<HtrCell>& Value(std::string_view keyword) const {
    const std::size_t index = KeywordIndex(keyword);
    assert(index < kKeywords.size());
    return values[index];
  }
};

}  // namespace orvane::htr
