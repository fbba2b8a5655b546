#include "platform/calendar_text.h"

#include <array>

namespace platform {
namespace {

std::string TwoColumns(int number, char filler) {
  return number < 10 ? filler + std::to_string(number) : std::to_string(number);
}

}  // namespace

// By hand, because asctime overruns its buffer for years of five digits and strftime follows the
// locale.
std::string CalendarText(const std::tm& moment) {
  constexpr std::array<const char*, 7> kDays = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  constexpr std::array<const char*, 12> kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                   "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  return std::string(kDays.at(static_cast<std::size_t>(moment.tm_wday))) + ' ' +
         kMonths.at(static_cast<std::size_t>(moment.tm_mon)) + ' ' +
         TwoColumns(moment.tm_mday, ' ') + ' ' + TwoColumns(moment.tm_hour, '0') + ':' +
         TwoColumns(moment.tm_min, '0') + ':' + TwoColumns(moment.tm_sec, '0') + ' ' +
         std::to_string(1900L + moment.tm_year) + '\n';
}

}  // namespace platform
