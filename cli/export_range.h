#pragma once

#include <vector>

#include "cli/dialog_user.h"
#include "host/scene/scene.h"

// Whether an export makes more frames than there is motion for.

namespace cli {

// Throws a Failure when the frames of the scene's animation range, or those of "--range" among
// `wishes`, are very many and many times more than the time between the first and the last key
// holds: all of them would be held in memory.
void RequireSensibleRange(const host::Scene& scene, const std::vector<ControlWish>& wishes);

}  // namespace cli
