#pragma once

#include <string>

namespace platform {

// Gives the file `from` the name `to`, on the same disk, unless there is something of that name.
// Returns 0, or -1 with errno, and everything is as it was.
[[nodiscard]] int MoveWithoutReplacing(const std::string& from, const std::string& to);

}  // namespace platform
