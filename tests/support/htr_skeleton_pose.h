#pragma once

#include <cstddef>

#include "formats/htr/segment.h"

namespace test {

// Where the joint at the start of `segment` is in a frame: file space, the document's units.
// Follows the parents up to the root.
orvane::Vector3 PositionOf(const orvane::HtrSegment& segment, std::size_t frame);

// Where the far end of the bone is, its length along the local Y axis from the joint.
orvane::Vector3 TipOf(const orvane::HtrSegment& segment, std::size_t frame);

}  // namespace test
