#include "platform/system_time.h"

#include "platform/program_clock.h"

namespace platform {

std::tm SystemTime() {
  const std::time_t now = std::time(nullptr);
  std::tm moment{};
  localtime_r(&now, &moment);
  return moment;
}

const std::int64_t* ProgramClock() { return SkelderStoppedClock(); }

}  // namespace platform
