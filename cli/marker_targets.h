#pragma once

#include <string>
#include <vector>

#include "cli/dialog_user.h"
#include "cli/failure.h"
#include "host/scene/scene.h"

// Which objects of a scene the trajectories of a marker file are applied to.

namespace cli {

// Looks at what is selected in `scene` before `file` is imported by `wishes`. Returns what becomes
// of markers that match none of it; nothing when objects are not applied to, but created.
std::vector<Complaint> InspectMarkerTargets(const std::string& file,
                                            const std::vector<ControlWish>& wishes,
                                            const host::Scene& scene);

}  // namespace cli
