#pragma once

#include <string>
#include <vector>

#include "cli/common/failure.h"

// Outputs that would take the place of what is read. --force is for what an earlier run has made.

namespace cli {

// What is said of such an output.
Complaint ReplacesInput(const std::string& output);

// Throws a Failure for wrong usage when the file to make, `output`, is one of `inputs`, however
// their paths are spelled.
void RequireNoInput(const std::string& output, const std::vector<std::string>& inputs);

}  // namespace cli
