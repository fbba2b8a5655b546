#include "platform/local_time.h"

#include <charconv>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <optional>

#include "platform/calendar_text.h"

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

}  // namespace

std::string LocalTimeText() { return CalendarText(Moment().value_or(std::tm{})); }

}  // namespace platform
