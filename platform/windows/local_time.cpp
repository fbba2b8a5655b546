#include "platform/local_time.h"

#include <windows.h>

#include "platform/calendar_text.h"

namespace platform {

std::string LocalTimeText() {
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
  return CalendarText(moment);
}

}  // namespace platform
