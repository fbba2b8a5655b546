#pragma once

#include "sdk/core/types.h"

// A span of time from start to end, both included, in ticks.
class Interval {
 public:
  constexpr Interval() = default;
  constexpr Interval(TimeValue start, TimeValue end) : start_(start), end_(end) {}

  constexpr TimeValue Start() const { return start_; }
  constexpr TimeValue End() const { return end_; }

  friend constexpr bool operator==(const Interval&, const Interval&) = default;

 private:
  TimeValue start_ = 0;
  TimeValue end_ = 0;
};
