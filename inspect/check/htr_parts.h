#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "formats/htr/read_observer.h"
#include "inspect/check/htr_keywords.h"

// Where the parts of an HTR file stand, as far as it was read. The texts lie in the bytes of the
// file.

namespace orvane::htr {

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

  HtrCell end;  // behind the last byte; empty

  // Null when there is no such segment.
  SegmentLines* Find(std::string_view name) {
    const auto found = segment_by_name.find(name);
    return found == segment_by_name.end() ? nullptr : &segments[found->second];
  }

  const std::optional<HtrCell>& Value(std::string_view keyword) const {
    return values[KeywordIndex(keyword)];
  }
};

}  // namespace orvane::htr
