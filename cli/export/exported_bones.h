#pragma once

#include <cstdint>

#include "host/scene/scene.h"

// Which bones of a scene an export samples.

namespace cli {

// How many there are from the one that is selected in `scene`, or the first below what is, down to
// those that only end a chain; 0 when there is none.
std::int64_t CountExportedBones(const host::Scene& scene);

}  // namespace cli
