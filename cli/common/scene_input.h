#pragma once

#include <string>
#include <vector>

#include "cli/common/failure.h"
#include "host/scene/scene.h"

// The scene file that a verb starts from, and what the user selects in it before the plug-in is
// asked.

namespace cli {

// Builds the scene in the file `path` in `scene`. Throws a Failure when the file cannot be read or
// holds no such scene.
// REQUIRES: `scene` is new.
void ReadSceneFile(const std::string& path, host::Scene& scene);

// Selects the nodes of these names, each the first of its name in the order of `orvane scene`. What
// was selected stays so unless there are names. Returns what to tell the user: of names that no
// node bears, and of such that several do.
[[nodiscard]] std::vector<Complaint> Select(host::Scene& scene,
                                            const std::vector<std::string>& names);

}  // namespace cli
