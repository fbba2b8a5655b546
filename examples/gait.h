#pragma once

#include <array>
#include <vector>

#include "examples/skeleton.h"

// A steady walk straight ahead along Z.
namespace examples {

inline constexpr double kCycle_s = 1.0;     // two steps
inline constexpr double kStride_mm = 1200;  // the way of one cycle, by default

// Where the body is at one time, in file space.
struct Pose {
  Vector3 hips_mm;
  std::array<RotationMatrix3, kBoneCount> rotations;  // take each bone's own axes to file space
};

// Who walks, and how.
struct Walker {
  std::vector<Bone> bones = Skeleton();
  Proportions proportions;
  double stride_mm = kStride_mm;
  double first_phase = 0.15;  // of the left leg: cycles from its heel strike
};

Pose WalkAt(double time_s, const Walker& walker = {});

}  // namespace examples
