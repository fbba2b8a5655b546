#pragma once

#include <string>

// The clock on the wall.

namespace platform {

// The current local time as ctime gives it, whatever the locale, its line break included:
// "Wed Jun 30 21:49:08 1993\n". While a program has put a clock in place of the system's, that
// one's moment in UTC, so that what two runs write can be compared; a moment that is more than
// 32,767 years away from the beginning of our era is none.
[[nodiscard]] std::string LocalTimeText();

}  // namespace platform
