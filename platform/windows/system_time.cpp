#include "platform/system_time.h"

#include <windows.h>

#include "platform/program_clock.h"

namespace platform {

std::tm SystemTime() {
  SYSTEMTIME now{};
  GetLocalTime(&now);
  std::tm moment{};
  moment.tm_year = now.wYear - 1900;
  moment.tm_mon = now.wMonth - 1;
  moment.tm_mday = now.wDay;
  moment.tm_wday = now.wDayOfWeek;
  moment.tm_hour = now.wHour;
  moment.tm_min = now.wMinute;
  moment.tm_sec = now.wSecond;
  return moment;
}

// Looked up, because a module that needed it would not be loaded by a host that has it not.
const std::int64_t* ProgramClock() {
  const HMODULE host = GetModuleHandleW(L"skelder.dll");
  if (host == nullptr) return nullptr;
  const auto clock = reinterpret_cast<decltype(&SkelderStoppedClock)>(
      reinterpret_cast<void*>(GetProcAddress(host, "SkelderStoppedClock")));
  return clock == nullptr ? nullptr : clock();
}

}  // namespace platform
