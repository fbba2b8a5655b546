#pragma once

#include <string>
#include <vector>

#include "cli/common/failure.h"
#include "cli/common/file_kind.h"
#include "cli/import/import_choices.h"
#include "host/scene/scene.h"

// What the plug-in does not say of a file that it imports.

namespace cli {

// What can be done about a header that announces far too many frames.
inline constexpr char kImportLess[] =
    "Is \"NumFrames\" right? --range FROM:TO imports a part of them.";

// Reads `file` before it is imported by `choices` into `scene`. Returns what its user should know;
// nothing when the reader refuses it or it is an HTR file without segments, because the plug-in
// tells that. Throws a Failure, with `advice`, when the import would be work out of proportion.
std::vector<Complaint> Inspect(const std::string& file, FileKind kind, const ImportChoices& choices,
                               const host::Scene& scene, const std::string& advice);

}  // namespace cli
