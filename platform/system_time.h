#pragma once

#include <cstdint>
#include <ctime>

// What LocalTimeText goes by; each system has a body.

namespace platform {

// The current local time of the system, its day of the week included.
[[nodiscard]] std::tm SystemTime();

// As SkelderStoppedClock, and null where the host does not provide that.
const std::int64_t* ProgramClock();

}  // namespace platform
