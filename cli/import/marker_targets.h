#pragma once

#include <string>
#include <vector>

#include "cli/common/failure.h"
#include "cli/import/import_flags.h"
#include "host/scene/scene.h"

// Which objects of a scene the trajectories of a marker file are applied to.

namespace cli {

// Looks at what is selected in `scene` before `file` is imported by `choices`. Returns what becomes
// of markers that match none of it; nothing when objects are not applied to, but created.
[[nodiscard]] std::vector<Complaint> InspectMarkerTargets(const std::string& file,
                                                          const ImportChoices& choices,
                                                          const host::Scene& scene);

}  // namespace cli
