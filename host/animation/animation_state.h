#pragma once

#include "host/animation/suspendable_mode.h"
#include "platform/export.h"
#include "sdk/core/interval.h"
#include "sdk/core/types.h"

// A scene's time: frame rate, range, current time, and the modes that decide what setting a value
// does. Keys are not here: controllers hold them. The scene owns it.

namespace host {

inline constexpr int kMinimumFrameRate = 1;
inline constexpr int kMaximumFrameRate = kTicksPerSecond;

// Ticks in one frame at `frame_rate` frames per second, in whole numbers; a rate out of bounds is
// held to them.
SKELDER_API int TicksPerFrame(int frame_rate);

// A scene's time and animation modes: 30 frames a second, range 0 to 100 frames, time 0, animate
// and set-key mode off at first.
class SKELDER_API AnimationState {
 public:
  SuspendableMode& AnimateMode() { return animate_mode_; }
  const SuspendableMode& AnimateMode() const { return animate_mode_; }
  SuspendableMode& SetKeyMode() { return set_key_mode_; }
  const SuspendableMode& SetKeyMode() const { return set_key_mode_; }

  int FrameRate() const { return frame_rate_; }

  // Holds `frame_rate` to 1 to 4800. Time, range and keys keep their ticks.
  void SetFrameRate(int frame_rate);
  int TicksPerFrame() const { return host::TicksPerFrame(frame_rate_); }

  // The current time, in ticks.
  TimeValue Time() const { return time_; }
  void SetTime(TimeValue time) { time_ = time; }

  // The animation range, in ticks.
  const Interval& Range() const { return range_; }
  void SetRange(const Interval& range) { range_ = range; }

 private:
  static constexpr int kFirstFrameRate = 30;
  static constexpr TimeValue kFirstRangeEnd = 100 * kTicksPerSecond / kFirstFrameRate;

  SuspendableMode animate_mode_{false};
  SuspendableMode set_key_mode_{false};
  int frame_rate_ = kFirstFrameRate;
  TimeValue time_ = 0;
  Interval range_{0, kFirstRangeEnd};
};

}  // namespace host
