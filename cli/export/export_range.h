#pragma once

#include <string>

#include "cli/export/export_htr_flags.h"
#include "host/scene/scene.h"

// Whether an export makes more frames than there is motion for, or such as a file cannot hold.

namespace cli {

// Throws a Failure when what `choices` take of the animation range of `scene`, which is that of
// `file`, is out of proportion to its keys, because all frames are held in memory, or when the
// number that the first or the last of them would have in the motion file does not fit 32 bits.
void RequireSensibleRange(const std::string& file, const host::Scene& scene,
                          const ExportChoices& choices);

}  // namespace cli
