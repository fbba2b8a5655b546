#pragma once

#include <string>
#include <vector>

#include "cli/common/failure.h"
#include "cli/import/import_choices.h"
#include "host/scene/scene.h"

// What the plug-in does not say of a marker file that it imports.

namespace cli {

// Reads `file` before it is imported by `choices` into `scene`. Returns what its user should know;
// nothing when the reader refuses it, because the plug-in tells that. Throws a Failure when the
// file holds no markers or, with `advice`, when the import would be work out of proportion.
std::vector<Complaint> InspectTrc(const std::string& file, const ImportChoices& choices,
                                  const host::Scene& scene, const std::string& advice);

}  // namespace cli
