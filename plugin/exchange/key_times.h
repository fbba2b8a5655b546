#pragma once

#include <cstdint>
#include <optional>

#include "sdk/core/interval.h"
#include "sdk/core/types.h"

// Which ticks the imported frames are keyed at. Frames are computed in 64 bits; one whose tick the
// host's 32-bit time cannot hold is left out.
namespace orvane {

class KeyTimes {
 public:
  // `frame_count` frames, the first of them at scene frame `first_frame`.
  // REQUIRES: `ticks_per_frame` is 1 or more, `frame_count` is 0 or more.
  KeyTimes(int ticks_per_frame, std::int64_t first_frame, std::int64_t frame_count);

  // The tick of imported frame `frame`, counted from 0; -1 is the one before the motion. Nothing
  // when it does not fit.
  [[nodiscard]] std::optional<TimeValue> Tick(std::int64_t frame) const;

  // The imported frames whose ticks fit: from `BeginFrame` up to and without `EndFrame`.
  std::int64_t BeginFrame() const { return begin_frame_; }
  std::int64_t EndFrame() const { return end_frame_; }

  // All ticks from the first of those frames up to and without the one after the last, as far as
  // they fit.
  std::int64_t BeginTick() const;
  std::int64_t EndTick() const;

 private:
  std::int64_t WideTick(std::int64_t frame) const;

  std::int64_t ticks_per_frame_;
  std::int64_t first_frame_;
  std::int64_t begin_frame_;
  std::int64_t end_frame_;
};

// The span from scene frame `first` to scene frame `last`; an end that does not fit is moved to the
// nearest tick that does.
Interval FrameInterval(int ticks_per_frame, std::int64_t first, std::int64_t last);

}  // namespace orvane
