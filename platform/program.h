#pragma once

#include <string>

// The running program itself.

namespace platform {

// The folder that the program's file is in, or "." when the system does not tell.
[[nodiscard]] std::string ProgramFolder();

// From now on whatever windows this thread opens are where nobody sees them, unless the environment
// variable ORVANE_VISIBLE is set. Call it before the thread has any. Without windows of the
// system's, and where that cannot be had, it does nothing.
void WorkUnseen();

}  // namespace platform
