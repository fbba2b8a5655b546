#pragma once

#include "sdk/geom/point3.h"

// An axis-aligned box between two corners.
class Box3 {
 public:
  constexpr Box3() = default;
  constexpr Box3(const Point3& minimum, const Point3& maximum) : min(minimum), max(maximum) {}

  friend constexpr bool operator==(const Box3&, const Box3&) = default;

  Point3 min;
  Point3 max;
};
