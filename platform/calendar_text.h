#pragma once

#include <ctime>
#include <string>

// A moment as text.

namespace platform {

// `moment` (its day of the week included) as asctime gives it, whatever the locale, its line break
// included: "Wed Jun 30 21:49:08 1993\n".
[[nodiscard]] std::string CalendarText(const std::tm& moment);

}  // namespace platform
