#pragma once

#include <string>

#include "cli/check_report.h"

// The check of mapping files: entries that have no effect or not the one that they seem to have.
// docs/formats/mnm.md lists the codes.

namespace cli {

// Checks `file`, and whether it fits the markers of the marker file `trc_file` unless that is
// empty. Throws a Failure when one of them cannot be read or is refused by its reader.
CheckedFile LintMappingFile(const std::string& file, const std::string& trc_file);

}  // namespace cli
