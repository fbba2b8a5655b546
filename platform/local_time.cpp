#include "platform/local_time.h"

#include <array>
#include <cassert>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <ctime>
#include <optional>

#include "platform/system_time.h"

namespace platform {
namespace {

// `seconds` since the beginning of 1970 as a date and a time in UTC, if the calendar reaches there.
// By the standard library's calendar, because the systems' functions differ in how far they reach.
std::optional<std::tm> UtcMoment(std::int64_t seconds) {
  using std::chrono::days;
  using std::chrono::sys_days;
  using std::chrono::sys_seconds;
  using std::chrono::year;
  constexpr sys_seconds kFirst = sys_days(year::min() / 1 / 1);
  constexpr sys_seconds kEnd = sys_days(year::max() / 12 / 31) + days(1);
  const sys_seconds time{std::chrono::seconds(seconds)};
  if (time < kFirst || time >= kEnd) return {};
  const sys_days day = std::chrono::floor<days>(time);
  const std::chrono::year_month_day date(day);
  const std::chrono::hh_mm_ss clock(time - day);
  std::tm moment{};
  moment.tm_year = static_cast<int>(date.year()) - 1900;
  moment.tm_mon = static_cast<int>(static_cast<unsigned>(date.month())) - 1;
  moment.tm_mday = static_cast<int>(static_cast<unsigned>(date.day()));
  moment.tm_wday = static_cast<int>(std::chrono::weekday(day).c_encoding());
  moment.tm_hour = static_cast<int>(clock.hours().count());
  moment.tm_min = static_cast<int>(clock.minutes().count());
  moment.tm_sec = static_cast<int>(clock.seconds().count());
  return moment;
}

std::optional<std::tm> MomentOfTheProgram() {
  const std::int64_t* const clock = ProgramClock();
  if (clock == nullptr) return {};
  return UtcMoment(*clock);
}

std::string TwoColumns(int number, char filler) {
  return number < 10 ? filler + std::to_string(number) : std::to_string(number);
}

// `moment` as asctime gives it. By hand, because asctime overruns its buffer for years of five
// digits and strftime follows the locale.
std::string CalendarText(const std::tm& moment) {
  constexpr std::array<const char*, 7> kDays = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  constexpr std::array<const char*, 12> kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                   "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  assert(0 <= moment.tm_wday && moment.tm_wday < 7 && 0 <= moment.tm_mon && moment.tm_mon < 12);
  return std::string(kDays.at(static_cast<std::size_t>(moment.tm_wday))) + ' ' +
         kMonths.at(static_cast<std::size_t>(moment.tm_mon)) + ' ' +
         TwoColumns(moment.tm_mday, ' ') + ' ' + TwoColumns(moment.tm_hour, '0') + ':' +
         TwoColumns(moment.tm_min, '0') + ':' + TwoColumns(moment.tm_sec, '0') + ' ' +
         std::to_string(1900L + moment.tm_year) + '\n';
}

}  // namespace

std::string LocalTimeText() {
  const std::optional<std::tm> moment = MomentOfTheProgram();
  return CalendarText(moment ? *moment : SystemTime());
}

}  // namespace platform
