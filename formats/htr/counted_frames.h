#pragma once

#include <cstddef>
#include <unordered_map>

#include "formats/htr/segment.h"

namespace orvane {

// How many frames segments hold, by segment; those without frames may be missing.
using HtrFrameCounts = std::unordered_map<const HtrSegment*, std::size_t>;

}  // namespace orvane
