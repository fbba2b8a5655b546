#include "platform/local_time.h"

#include <array>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <optional>

namespace platform {
namespace {

// What SOURCE_DATE_EPOCH says, or nothing when it says no number of seconds.
std::optional<std::time_t> FixedClock() {
  const char* const text = std::getenv("SOURCE_DATE_EPOCH");
  if (text == nullptr) return {};
  const char* const end = text + std::strlen(text);
  std::time_t seconds = 0;
  const auto [rest, error] = std::from_chars(text, end, seconds);
  if (error != std::errc() || rest != end) return {};
  return seconds;
}

std::optional<std::tm> Moment() {
  std::tm moment{};
  if (const std::optional<std::time_t> fixed = FixedClock()) {
    if (gmtime_r(&*fixed, &moment) != nullptr) return moment;
  }
  const std::time_t now = std::time(nullptr);
  if (localtime_r(&now, &moment) == nullptr) return {};
  return moment;
}

std::string TwoColumns(int number, char filler) {
  return number < 10 ? filler + std::to_string(number) : std::to_string(number);
}

}  // namespace

// By hand, because asctime overruns its buffer for years of five digits and strftime follows the
// locale.
std::string LocalTimeText() {
  constexpr std::array<const char*, 7> kDays = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  constexpr std::array<const char*, 12> kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                   "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  const std::tm moment = Moment().value_or(std::tm{});
  return std::string(kDays.at(static_cast<std::size_t>(moment.tm_wday))) + ' ' +
         kMonths.at(static_cast<std::size_t>(moment.tm_mon)) + ' ' +
         TwoColumns(moment.tm_mday, ' ') + ' ' + TwoColumns(moment.tm_hour, '0') + ':' +
         TwoColumns(moment.tm_min, '0') + ':' + TwoColumns(moment.tm_sec, '0') + ' ' +
         std::to_string(1900L + moment.tm_year) + '\n';
}

}  // namespace platform
