#pragma once

#include <array>
#include <cassert>
#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "formats/htr/read_observer.h"
#include "formats/text/name_index.h"
#include "inspect/check/findings.h"
#include "inspect/check/kept_cell.h"

// What the header of an HTR file may say, and where the parts of a file stand, as far as it was
// read. Lines and columns count from 1; nothing fails but for want of memory.

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
  KeptCell name;
  KeptCell parent;
  std::size_t base_section = 0;  // the number of the last one with a line for it; 0 for none
  std::optional<FindingPlace> motion{};  // the name of the last section of it
  std::size_t frames = 0;                // in all of them
};

struct HtrParts {
  std::optional<FindingPlace> header;  // name of the first such section, and so on
  std::optional<FindingPlace> hierarchy;
  std::optional<FindingPlace> base_position;
  std::optional<FindingPlace> motion;  // of a segment
  bool has_end = false;

  std::size_t base_sections = 0;
  std::size_t base_lines = 0;
  std::size_t linked_segments = 0;  // that the last base-position section has found

  std::array<std::optional<KeptCell>, kKeywords.size()> values;  // the last of each keyword

  std::deque<SegmentLines> segments;  // in the document's order
  NameIndex segment_by_name;
  mutable std::size_t likely_next = 0;  // where IndexOf looks first

  FindingPlace end;  // behind the last byte

  // Tells the name of the segment at an index.
  [[nodiscard]] auto NameAt() const {
    return [this](std::size_t index) -> const std::string& { return segments[index].name.text; };
  }

  void AddSegment(KeptCell name, KeptCell parent) {
    segments.push_back({std::move(name), std::move(parent)});
    segment_by_name.Add(segments.back().name.text, segments.size() - 1, NameAt());
  }

  // The index of the segment of that name, its first; nothing when there is none. Files nearly
  // always take the segments in one order, section after section: the one behind the last that was
  // found is looked at first.
  [[nodiscard]] std::optional<std::size_t> IndexOf(std::string_view name) const {
    const bool have_own_names = segment_by_name.Size() == segments.size();
    const bool is_next =
        have_own_names && likely_next < segments.size() && segments[likely_next].name.text == name;
    if (is_next) return likely_next++;
    const auto found = segment_by_name.Find(name, NameAt());
    if (found) likely_next = *found + 1;
    return found;
  }

  // Null when there is no such segment. It stays where it is.
  [[nodiscard]] SegmentLines* Find(std::string_view name) {
    const auto index = IndexOf(name);
    return index ? &segments[*index] : nullptr;
  }
  [[nodiscard]] const SegmentLines* Find(std::string_view name) const {
    const auto index = IndexOf(name);
    return index ? &segments[*index] : nullptr;
  }

  // The last value of a keyword. REQUIRES: `keyword` is one of kKeywords.
  [[nodiscard]] const std::optional<KeptCell>& Value(std::string_view keyword) const {
    const std::size_t index = KeywordIndex(keyword);
    assert(index < kKeywords.size());
    return values[index];
  }
  // Where that is, or where the file ends.
  [[nodiscard]] FindingPlace PlaceOfValue(std::string_view keyword) const {
    const std::optional<KeptCell>& value = Value(keyword);
    return value ? PlaceOf(*value) : end;
  }
};

}  // namespace orvane::htr
