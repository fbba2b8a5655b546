#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "formats/trc/sample_block.h"
#include "inspect/counts/frame_span.h"

// Samples that a marker does not have. Frames count from 0. Nothing fails.

namespace orvane {

// Frames in a row without a position, from `begin` up to and without `end`.
using FrameGap = TRCSampleBlock::Gap;

// In how many of `frames` a marker has no position that has these `gaps` among so many frames that
// are `held`: those behind the last one among them.
[[nodiscard]] std::int64_t CountDropouts(std::span<const FrameGap> gaps, std::size_t held,
                                         const FrameSpan& frames);

}  // namespace orvane
