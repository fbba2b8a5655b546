#pragma once

#include <ostream>
#include <vector>

#include "inspect/check/checked_file.h"

// What `orvane check` tells of its files: as lines for a person, or as JSON for a program.
// docs/command-line.md documents the JSON; its version changes when a field changes its meaning or
// goes.

namespace cli {

// One line for a file without findings.
void PrintCheckedFile(const orvane::CheckedFile& checked, std::ostream& out);

void PrintCheckJson(const std::vector<orvane::CheckedFile>& files, std::ostream& out);

}  // namespace cli
