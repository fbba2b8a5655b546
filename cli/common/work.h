#pragma once

#include <functional>

#include "cli/common/exit_status.h"

namespace cli {

// What the arguments ask for, ready to run. It may throw a Failure.
using Work = std::function<ExitStatus()>;

}  // namespace cli
