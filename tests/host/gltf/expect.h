#pragma once

#include <gtest/gtest.h>

#include <cstddef>

#include "host/scene/scene.h"
#include "tests/host/gltf/viewer.h"

// What host values become in a viewer, worked out here independently: metres, Y up.

namespace test {

// Between a place in single precision, in metres, and the same place computed in double precision.
inline constexpr double kPlaceInMeters = 2e-6;

inline Vector3 InViewer(const Point3& position, double millimeters) {
  return {position.x * millimeters / 1000.0, position.z * millimeters / 1000.0,
          -position.y * millimeters / 1000.0};
}

inline void ExpectNear(const Vector3& actual, const Vector3& expected, double tolerance) {
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_NEAR(actual[i], expected[i], tolerance) << "component " << i;
  }
}

// Where `world` takes the point `local` (both the host's), in a viewer.
inline Vector3 InViewer(const Matrix3& world, const Point3& local, double millimeters) {
  Matrix3 move;
  move.SetRow(3, local);
  return InViewer((move * world).GetRow(3), millimeters);
}

// Expects that `viewer_world` takes every point where `world` takes it.
inline void ExpectSameTransform(const Matrix4& viewer_world, const Matrix3& world,
                                double millimeters, double tolerance = kPlaceInMeters) {
  const float unit = static_cast<float>(1000.0 / millimeters);
  for (const Point3& point :
       {Point3(), Point3(unit, 0, 0), Point3(0, unit, 0), Point3(0, 0, unit)}) {
    ExpectNear(Apply(viewer_world, InViewer(point, millimeters)),
               InViewer(world, point, millimeters), tolerance);
  }
}

}  // namespace test
