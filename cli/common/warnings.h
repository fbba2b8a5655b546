#pragma once

#include <vector>

#include "cli/common/failure.h"

// What was told on the way to something that succeeded.

namespace cli {

// Prints `complaints` as warnings. When the user is `strict` they are reasons against it: throws a
// Failure if there are any.
void Warn(std::vector<Complaint> complaints, bool strict);

}  // namespace cli
