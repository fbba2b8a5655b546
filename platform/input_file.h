#pragma once

#include <string>

// Whether a file can be read, asked before anything is done with it, so that the user is told why
// not.

namespace platform {

// Returns why the regular file `path` cannot be read, in the system's words ("No such file or
// directory"), or an empty text when it can.
[[nodiscard]] std::string WhyUnreadable(const std::string& path);

}  // namespace platform
