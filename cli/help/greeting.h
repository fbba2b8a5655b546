#pragma once

#include "cli/common/failure.h"

// What the program says to who calls it without a word.

namespace cli {

// Writes what the program is, where its help is, and two examples to standard error. The status is
// that of wrong usage.
ExitStatus Greet();

}  // namespace cli
