#pragma once

#include <optional>
#include <vector>

#include "inspect/counts/frame_span.h"

// The two files that are compared, called A and B, and the frames that they hold, by their numbers.
// Nothing fails but for want of memory. May be called from any thread.

namespace orvane {

enum class WhichFile { kA, kB };

struct FramesOfOne {
  WhichFile file = WhichFile::kA;
  FrameSpan frames;
};

// Frames of `a` that are also in `b`; nothing when there are none.
[[nodiscard]] std::optional<FrameSpan> CommonFrames(const FrameSpan& a, const FrameSpan& b);

// Frames of one of them alone, those of `a` first.
[[nodiscard]] std::vector<FramesOfOne> FramesOfOneAlone(const FrameSpan& a, const FrameSpan& b);

}  // namespace orvane
