#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "examples/geometry.h"

// The body of the walker: an adult of 1.76 m, standing with its arms held out to the sides; and
// bodies of other proportions.
namespace examples {

// The bones in file order; each stands behind its parent.
enum class BoneId : std::size_t {
  kHips,
  kSpine,
  kChest,
  kNeck,
  kHead,
  kLeftShoulder,
  kLeftArm,
  kLeftForeArm,
  kLeftHand,
  kRightShoulder,
  kRightArm,
  kRightForeArm,
  kRightHand,
  kLeftUpLeg,
  kLeftLeg,
  kLeftFoot,
  kLeftToe,
  kRightUpLeg,
  kRightLeg,
  kRightFoot,
  kRightToe,
  kCount,
};

inline constexpr std::size_t kBoneCount = static_cast<std::size_t>(BoneId::kCount);

struct Bone {
  std::string_view name;
  int parent;            // index, or -1 for the root
  Vector3 joint_mm;      // where the bone starts, at rest
  RotationMatrix3 rest;  // takes the bone's own axes to file space; its length runs along its own Y
  double length_mm;
};

// How many times as long as the walker's the parts of a body are.
struct Proportions {
  double thigh = 1;
  double shank = 1;
  double trunk = 1;  // from the hips up, with neck and head
  double arm = 1;
  double shoulders = 1;  // their width
  double hips = 1;       // their width
};

// Where the point at `rest_mm` of the walker is on a body of such proportions, both at rest.
Vector3 Fitted(const Vector3& rest_mm, const Proportions& proportions);

// One per BoneId, in that order: the walker's, and those of another body.
const std::vector<Bone>& Skeleton();
std::vector<Bone> FittedSkeleton(const Proportions& proportions);

// Measures of the walker that the gait needs too.
inline constexpr double kThigh_mm = 430;
inline constexpr double kShank_mm = 430;
inline constexpr double kAnkleHeight_mm = 80;
inline constexpr double kHeelBehindAnkle_mm = 50;
inline constexpr double kBallAheadOfAnkle_mm = 115;
inline constexpr double kBallHeight_mm = 20;
inline constexpr double kToe_mm = 65;

// The foot's slope at rest: its Y axis runs from the ankle down to the ball.
RotationMatrix3 FootAtRest();

}  // namespace examples
