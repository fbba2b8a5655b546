#pragma once

#include <cstdint>

#include "platform/export.h"

namespace host {

// A clock that stands still. As long as this object lives, a plug-in finds it in place of the
// system's; then the one that was in use before is again. They are destroyed in reverse order.
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
