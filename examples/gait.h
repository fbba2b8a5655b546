#pragma once

#include <array>

#include "examples/skeleton.h"

// A steady walk straight ahead along Z.
namespace examples {

inline constexpr double kCycle_s = 1.0;     // two steps
inline constexpr double kStride_mm = 1200;  // the way of one cycle

// Where the body is at one time, in file space.
struct Pose {
  Vector3 hips_mm;
  std::array<RotationMatrix3, kBoneCount> rotations;  // take each bone's own axes to file space
};

Pose WalkAt(double time_s);

}  // namespace examples
