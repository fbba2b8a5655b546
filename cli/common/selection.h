#pragma once

#include <string>
#include <vector>

#include "cli/common/failure.h"
#include "host/scene/scene.h"

// What the user selects in a scene before the plug-in is asked.

namespace cli {

// Selects the nodes of these names, each the first of its name in the order of `orvane scene`. What
// was selected stays so unless there are names. Returns what to tell the user: of names that no
// node bears, and of such that several do.
std::vector<Complaint> Select(host::Scene& scene, const std::vector<std::string>& names);

}  // namespace cli
