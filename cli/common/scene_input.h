#pragma once

#include <string>

#include "host/scene/scene.h"

// The scene file that a verb starts from.

namespace cli {

// Builds the scene in the file `path` in `scene`, which is new. Throws a Failure when the file
// cannot be read or holds no such scene.
void ReadSceneFile(const std::string& path, host::Scene& scene);

}  // namespace cli
