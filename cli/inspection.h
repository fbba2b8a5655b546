#pragma once

#include <string>
#include <vector>

#include "cli/dialog_user.h"
#include "cli/failure.h"
#include "cli/file_kind.h"

// What the plug-in does not say of a file that it imports.

namespace cli {

// Reads `file` before it is imported by `wishes`. Returns what its user should know; nothing when
// the reader refuses it or it is an HTR file without segments, because the plug-in tells that.
// Throws a Failure when the import would be work out of proportion.
std::vector<Complaint> Inspect(const std::string& file, FileKind kind,
                               const std::vector<ControlWish>& wishes);

}  // namespace cli
