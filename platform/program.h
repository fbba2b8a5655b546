#pragma once

#include <string>

// The running program itself.

namespace platform {

// The folder that the program's file is in, or "." when the system does not tell.
std::string ProgramFolder();

}  // namespace platform
