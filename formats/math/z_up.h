#pragma once

#include "formats/math/vector.h"

namespace orvane {

// A point of a world whose Y axis is up, in the same world with Z up: both right-handed, X stays.
// Example: the file's (1, 2, 3) is the host's (1, -3, 2).
inline Vector3 ZUpFromYUp(const Vector3& point) {
  return Vector3(point.x(), -point.z(), point.y());
}

}  // namespace orvane
