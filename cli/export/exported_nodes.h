#pragma once

#include <optional>
#include <vector>

#include "cli/export/export_htr_flags.h"
#include "host/scene/scene.h"
#include "inspect/report/export_check.h"

// The skeleton that an export takes out of a scene.

namespace cli {

// The bone that is selected in `scene`, or the first below what is, and all that hangs from it, as
// an export by `choices` samples them. Empty when there is none. Only bones below an uneven scale
// are looked at frame by frame.
[[nodiscard]] std::vector<orvane::ExportNode> DescribeExport(const host::Scene& scene,
                                                             const ExportChoices& choices);

// The frames that are exported, and those of the keys that move the skeleton, which are those of
// its nodes and of the ones above it; nothing when none are exported.
[[nodiscard]] std::optional<orvane::ExportFrames> DescribeFrames(const host::Scene& scene,
                                                                 const ExportChoices& choices);

}  // namespace cli
