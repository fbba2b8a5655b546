#pragma once

#include <string>
#include <vector>

#include "cli/check_report.h"

// The check of mapping files, alone and against the markers of a capture. The reader reads them as
// it always does; docs/formats/mnm.md lists the codes.

namespace cli {

// Throws a Failure when `file` cannot be read.
CheckedFile CheckMnmFile(const std::string& file);

// Checks the mapping `file` and what it makes of the markers of `capture`, a TRC file. Returns what
// is found in either, in that order. Throws a Failure when one of them cannot be read, or is no
// capture with markers.
std::vector<CheckedFile> CheckMapping(const std::string& file, const std::string& capture);

}  // namespace cli
