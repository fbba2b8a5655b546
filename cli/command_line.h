#pragma once

#include <functional>

#include "cli/exit_status.h"

// The program's arguments: its verbs and their flags.

namespace cli {

// What the arguments ask for, ready to run. It may throw a Failure.
using Work = std::function<ExitStatus()>;

// Reads the arguments of `main`. Throws a Failure when they are wrong. `--help` and `--version` are
// work too.
Work ReadCommandLine(int argument_count, const char* const* arguments);

}  // namespace cli
