#pragma once

#include <string>

#include "cli/check_report.h"

// The check of TRC files. The reader reads them as it always does, and is watched meanwhile;
// docs/formats/trc.md lists the codes.

namespace cli {

// Throws a Failure when `file` cannot be read to its end.
CheckedFile CheckTrcFile(const std::string& file);

}  // namespace cli
