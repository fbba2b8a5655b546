#pragma once

#include <cstdint>

#include "formats/htr/document.h"
#include "host/scene/scene.h"

// Which segments of a motion file an import sets keys for.

namespace cli {

// How many there are of `document`: those of the new skeleton that the first root makes or, when
// they `apply` to the skeleton that is selected in `scene`, those that find their bones there. A
// segment that is listed more than once among its parent's children counts as often, up to two
// million repetitions in all.
[[nodiscard]] std::int64_t CountKeyedSegments(orvane::HtrDocument& document, bool apply,
                                              const host::Scene& scene);

}  // namespace cli
