#pragma once

#include <cstdint>

#include "formats/trc/marker.h"
#include "inspect/counts/frame_span.h"

// Samples that a marker does not have. Nothing fails.

namespace orvane {

// How many of `frames`, counted from 0, `marker` has no position in: those behind its last sample
// among them.
[[nodiscard]] std::int64_t CountDropouts(const TRCMarker& marker, const FrameSpan& frames);

}  // namespace orvane
