#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>

#include "formats/htr/document.h"
#include "formats/trc/document.h"
#include "formats/trc/outline.h"

// Frames in a row, by their numbers. Nothing fails but for want of memory. May be called from any
// thread; documents are only read.

namespace orvane {

// Both ends included; none when the last comes before the first.
struct FrameSpan {
  std::int64_t first = 1;
  std::int64_t last = 0;

  [[nodiscard]] std::int64_t Count() const { return std::max<std::int64_t>(last - first + 1, 0); }
  [[nodiscard]] bool IsEmpty() const { return last < first; }

  friend bool operator==(const FrameSpan&, const FrameSpan&) = default;
};

// The ends of spans that are asked for from the first frame on that there is, or to the last.
inline constexpr std::int64_t kFromFirst = -(std::int64_t{1} << 62U);
inline constexpr std::int64_t kToLast = std::int64_t{1} << 62U;

// `asked`, which begins or ends where `held` does when it says no frame there.
[[nodiscard]] inline FrameSpan Closed(const FrameSpan& asked, const FrameSpan& held) {
  return {asked.first == kFromFirst ? held.first : asked.first,
          asked.last == kToLast ? held.last : asked.last};
}

// The frames that are in both.
[[nodiscard]] inline FrameSpan Overlap(const FrameSpan& left, const FrameSpan& right) {
  return {std::max(left.first, right.first), std::min(left.last, right.last)};
}

// "5 to 12", and of one frame "5".
[[nodiscard]] std::string NumbersOf(const FrameSpan& frames);

// "frames 5 to 12", and of one "frame 5".
[[nodiscard]] std::string FramesText(const FrameSpan& frames);

// "the frames 5 to 12", and of one "frame 5"; "the frames 5 to the last".
[[nodiscard]] std::string TheFrames(const FrameSpan& frames);

// Where frames have been named before: "5 to 12", and of one "frame 5".
[[nodiscard]] std::string RangeText(const FrameSpan& frames);

// The frames that a file holds, as opposed to those that its header announces, as the reader
// numbers them; those of the longest segment.
[[nodiscard]] FrameSpan FramesHeld(const HtrDocument& document);
[[nodiscard]] FrameSpan FramesHeld(const TRCDocument& document);

// Of a marker file by its outline: also of one without markers, whose document holds none.
// REQUIRES: the reader takes the file.
[[nodiscard]] FrameSpan FramesHeld(const TRCOutliner& outline);

}  // namespace orvane
