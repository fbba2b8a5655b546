#pragma once

#include <cstdint>
#include <optional>
#include <vector>

// The two files that are compared, called A and B, and the frames that they hold. Nothing fails but
// for want of memory.

namespace orvane {

enum class WhichFile { kA, kB };

// Numbers of frames, both ends included; none when the last is before the first.
struct FrameNumbers {
  std::int64_t first = 0;
  std::int64_t last = 0;

  [[nodiscard]] bool IsEmpty() const { return last < first; }
};

struct FramesOfOne {
  WhichFile file = WhichFile::kA;
  FrameNumbers frames;
};

// Frames of `a` that are also in `b`; nothing when there are none.
[[nodiscard]] std::optional<FrameNumbers> CommonFrames(const FrameNumbers& a,
                                                       const FrameNumbers& b);

// Frames of one of them alone, those of `a` first.
[[nodiscard]] std::vector<FramesOfOne> FramesOfOneAlone(const FrameNumbers& a,
                                                        const FrameNumbers& b);

}  // namespace orvane
