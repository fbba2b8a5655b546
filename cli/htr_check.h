#pragma once

#include <string>

#include "cli/check_report.h"

// The check of HTR files. The reader reads them as it always does, and is watched meanwhile;
// docs/formats/htr.md lists the codes.

namespace cli {

// Throws a Failure when `file` cannot be read to its end.
CheckedFile CheckHtrFile(const std::string& file);

}  // namespace cli
