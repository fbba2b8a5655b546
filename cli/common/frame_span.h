#pragma once

#include <algorithm>
#include <cstdint>

namespace cli {

// Frames in a row, by their numbers, both ends included; none when the last comes before the first.
struct FrameSpan {
  std::int64_t first = 1;
  std::int64_t last = 0;

  std::int64_t Count() const { return std::max<std::int64_t>(last - first + 1, 0); }
};

// The frames that are in both.
inline FrameSpan Overlap(const FrameSpan& left, const FrameSpan& right) {
  return {std::max(left.first, right.first), std::min(left.last, right.last)};
}

}  // namespace cli
