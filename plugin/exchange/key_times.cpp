#include "plugin/exchange/key_times.h"

#include <algorithm>
#include <cassert>
#include <limits>

namespace orvane {
namespace {

constexpr std::int64_t kFirstTick = std::numeric_limits<TimeValue>::min();
constexpr std::int64_t kLastTick = std::numeric_limits<TimeValue>::max();

TimeValue NearestTick(std::int64_t tick) {
  return static_cast<TimeValue>(std::clamp(tick, kFirstTick, kLastTick));
}

}  // namespace

KeyTimes::KeyTimes(int ticks_per_frame, std::int64_t first_frame, std::int64_t frame_count)
    : ticks_per_frame_(ticks_per_frame), first_frame_(first_frame) {
  assert(ticks_per_frame >= 1 && frame_count >= 0);
  // Division truncates towards zero, so these are the outermost scene frames that fit.
  const std::int64_t first_that_fits = kFirstTick / ticks_per_frame_;
  const std::int64_t last_that_fits = kLastTick / ticks_per_frame_;
  begin_frame_ = std::clamp<std::int64_t>(first_that_fits - first_frame, 0, frame_count);
  end_frame_ = std::clamp(last_that_fits + 1 - first_frame, begin_frame_, frame_count);
}

std::optional<TimeValue> KeyTimes::Tick(std::int64_t frame) const {
  const std::int64_t tick = WideTick(frame);
  if (tick < kFirstTick || tick > kLastTick) return std::nullopt;
  return static_cast<TimeValue>(tick);
}

std::int64_t KeyTimes::BeginTick() const { return WideTick(begin_frame_); }

std::int64_t KeyTimes::EndTick() const {
  if (begin_frame_ == end_frame_) return BeginTick();
  return std::min(WideTick(end_frame_), kLastTick + 1);
}

std::int64_t KeyTimes::WideTick(std::int64_t frame) const {
  return ticks_per_frame_ * (first_frame_ + frame);
}

Interval FrameInterval(int ticks_per_frame, std::int64_t first, std::int64_t last) {
  return Interval(NearestTick(ticks_per_frame * first), NearestTick(ticks_per_frame * last));
}

}  // namespace orvane
