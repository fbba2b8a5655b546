#pragma once

#include "cli/common/failure.h"

// The program's arguments: its verbs and their flags.

namespace cli {

// Reads the arguments of `main`. Throws a Failure when they are wrong. `--help` and `--version` are
// work too.
[[nodiscard]] Work ReadCommandLine(int argument_count, const char* const* arguments);

}  // namespace cli
