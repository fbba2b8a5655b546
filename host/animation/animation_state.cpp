#include "host/animation/animation_state.h"

#include <algorithm>

namespace host {

int TicksPerFrame(int frame_rate) {
  return kTicksPerSecond / std::clamp(frame_rate, kMinimumFrameRate, kMaximumFrameRate);
}

void AnimationState::SetFrameRate(int frame_rate) {
  frame_rate_ = std::clamp(frame_rate, kMinimumFrameRate, kMaximumFrameRate);
}

}  // namespace host
