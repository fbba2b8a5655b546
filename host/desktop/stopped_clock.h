#pragma once

#include <cstdint>

#include "platform/export.h"

// The clock that a program shows to a plug-in in place of the system's (platform/program_clock.h).
// The program owns it.

namespace host {

// A clock that stands still. As long as this object lives, a plug-in finds it in place of the
// system's; then the one that was in use before is again.
// REQUIRES: they are destroyed in reverse order.
class SKELDER_API StoppedClock {
 public:
  // It stands `seconds` after the beginning of 1970 in UTC.
  explicit StoppedClock(std::int64_t seconds);
  ~StoppedClock();
  StoppedClock(const StoppedClock&) = delete;
  StoppedClock& operator=(const StoppedClock&) = delete;

 private:
  const std::int64_t seconds_;
  const std::int64_t* const previous_;
};

}  // namespace host
