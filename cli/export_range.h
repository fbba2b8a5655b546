#pragma once

#include "cli/export_htr_flags.h"
#include "host/scene/scene.h"

// Whether an export makes more frames than there is motion for.

namespace cli {

// Throws a Failure when what `choices` take of the animation range of `scene` is out of proportion
// to its keys: all frames are held in memory.
void RequireSensibleRange(const host::Scene& scene, const ExportChoices& choices);

}  // namespace cli
