#pragma once

#include "cli/common/failure.h"

// The program as a function.

namespace cli {

// Does what the arguments of `main` ask for, and tells on standard error why it could not. Nothing
// is thrown.
[[nodiscard]] ExitStatus RunProgram(int argument_count, const char* const* arguments);

}  // namespace cli
