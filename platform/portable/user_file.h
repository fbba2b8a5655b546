#pragma once

#include <string>

// Where programs keep what belongs to a user, after the XDG base directory specification.

namespace platform {

// The path of the file `name` in the folder `orvane` of the one that the environment variable
// `variable` names or, when it is not set or (which XDG forbids) relative, of
// `fallback` beneath the user's home.
// Returns the path; empty when the user has no home either. Creates nothing.
[[nodiscard]] std::string UserFile(const char* variable, const char* fallback, const char* name);

}  // namespace platform
