#pragma once

#include <string>

// The clock on the wall.

namespace platform {

// The current local time as ctime gives it, whatever the locale, its line break included:
// "Wed Jun 30 21:49:08 1993\n". Off Windows the environment variable SOURCE_DATE_EPOCH, when it
// holds a number of seconds, sets the clock to that moment and the time zone to UTC, so that what
// two runs write can be compared.
std::string LocalTimeText();

}  // namespace platform
