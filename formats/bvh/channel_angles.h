#pragma once

#include "formats/math/rotation_matrix3.h"

// Rotations as the angles of a joint's channels.
namespace orvane {

// In radians, in the order of the channels: Rz(z) Rx(x) Ry(y) on column vectors.
struct BvhAngles {
  double z = 0.0;
  double x = 0.0;
  double y = 0.0;
};

// The angles that give `rotation`, and of all those the nearest to `previous`: a motion without
// jumps has angles without jumps, which programs may interpolate. They are exact next to gimbal
// lock too, where y stays as it was. REQUIRES: all are finite.
[[nodiscard]] BvhAngles AnglesNear(const RotationMatrix3& rotation, const BvhAngles& previous);

}  // namespace orvane
