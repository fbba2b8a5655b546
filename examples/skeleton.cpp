#include "examples/skeleton.h"

#include <cmath>

namespace examples {
namespace {

constexpr double kHipHeight_mm = kAnkleHeight_mm + kShank_mm + kThigh_mm;
constexpr double kPelvisHeight_mm = kHipHeight_mm + 40;
constexpr double kHalfHipWidth_mm = 95;
constexpr double kHalfShoulderWidth_mm = 180;
constexpr double kShoulderHeight_mm = 1420;
constexpr double kTopOfChest_mm = 1500;
constexpr double kBallDrop_mm = kAnkleHeight_mm - kBallHeight_mm;

int Index(BoneId bone) { return static_cast<int>(bone); }

// Four bones of one arm; `side` is 1 for the left and -1 for the right.
void AddArm(std::vector<Bone>& bones, double side) {
  const bool left = side > 0;
  const RotationMatrix3 outwards = AboutZ(-90 * side);
  const int first = static_cast<int>(bones.size());
  const auto joint = [side](double x) { return Vector3(side * x, kShoulderHeight_mm, 0); };
  bones.push_back(
      {left ? "LeftShoulder" : "RightShoulder", Index(BoneId::kChest), joint(30), outwards, 150});
  bones.push_back(
      {left ? "LeftArm" : "RightArm", first, joint(kHalfShoulderWidth_mm), outwards, 290});
  bones.push_back({left ? "LeftForeArm" : "RightForeArm", first + 1, joint(470), outwards, 250});
  bones.push_back({left ? "LeftHand" : "RightHand", first + 2, joint(720), outwards, 170});
}

// Four bones of one leg.
void AddLeg(std::vector<Bone>& bones, double side) {
  const bool left = side > 0;
  const RotationMatrix3 down = AboutX(180);
  const int first = static_cast<int>(bones.size());
  const double x = side * kHalfHipWidth_mm;
  bones.push_back({left ? "LeftUpLeg" : "RightUpLeg", Index(BoneId::kHips),
                   Vector3(x, kHipHeight_mm, 0), down, kThigh_mm});
  bones.push_back({left ? "LeftLeg" : "RightLeg", first, Vector3(x, kAnkleHeight_mm + kShank_mm, 0),
                   down, kShank_mm});
  bones.push_back({left ? "LeftFoot" : "RightFoot", first + 1, Vector3(x, kAnkleHeight_mm, 0),
                   FootAtRest(), std::hypot(kBallDrop_mm, kBallAheadOfAnkle_mm)});
  bones.push_back({left ? "LeftToe" : "RightToe", first + 2,
                   Vector3(x, kBallHeight_mm, kBallAheadOfAnkle_mm), AboutX(90), kToe_mm});
}

std::vector<Bone> MakeSkeleton() {
  const RotationMatrix3 up;
  std::vector<Bone> bones = {
      {"Hips", -1, Vector3(0, kPelvisHeight_mm, 0), up, 100},
      {"Spine", Index(BoneId::kHips), Vector3(0, 1080, 0), up, 170},
      {"Chest", Index(BoneId::kSpine), Vector3(0, 1250, 0), up, 220},
      {"Neck", Index(BoneId::kChest), Vector3(0, 1470, 0), up, 90},
      {"Head", Index(BoneId::kNeck), Vector3(0, 1560, 0), up, 200},
  };
  AddArm(bones, 1);
  AddArm(bones, -1);
  AddLeg(bones, 1);
  AddLeg(bones, -1);
  return bones;
}

// Above the feet, which are the same on all bodies.
double FittedHeight(double y, const Proportions& proportions) {
  const double knee = kAnkleHeight_mm + kShank_mm * proportions.shank;
  const double hip = knee + kThigh_mm * proportions.thigh;
  if (y < kAnkleHeight_mm) return y;
  if (y < kAnkleHeight_mm + kShank_mm) {
    return kAnkleHeight_mm + (y - kAnkleHeight_mm) * proportions.shank;
  }
  if (y < kHipHeight_mm) return knee + (y - kAnkleHeight_mm - kShank_mm) * proportions.thigh;
  return hip + (y - kHipHeight_mm) * proportions.trunk;
}

// How far from the middle a point is that is `x` from it; `y` says of which part of the body.
double FittedWidth(double x, double y, const Proportions& proportions) {
  constexpr double kTopOfPelvis_mm = 1060;
  const double more_hips = kHalfHipWidth_mm * (proportions.hips - 1);
  if (y < kHipHeight_mm) return x + more_hips;
  if (y < kTopOfPelvis_mm) return x * proportions.hips;
  if (x < kHalfShoulderWidth_mm) {
    return y > kTopOfChest_mm ? x : x * proportions.shoulders;
  }
  return kHalfShoulderWidth_mm * proportions.shoulders +
         (x - kHalfShoulderWidth_mm) * proportions.arm;
}

}  // namespace

Vector3 Fitted(const Vector3& rest_mm, const Proportions& proportions) {
  const double width = FittedWidth(std::abs(rest_mm.x()), rest_mm.y(), proportions);
  return Vector3(rest_mm.x() == 0 ? 0 : std::copysign(width, rest_mm.x()),
                 FittedHeight(rest_mm.y(), proportions), rest_mm.z());
}

std::vector<Bone> FittedSkeleton(const Proportions& proportions) {
  std::vector<Bone> bones = Skeleton();
  for (Bone& bone : bones) bone.joint_mm = Fitted(bone.joint_mm, proportions);
  return bones;
}

const std::vector<Bone>& Skeleton() {
  static const std::vector<Bone> bones = MakeSkeleton();
  return bones;
}

RotationMatrix3 FootAtRest() {
  const Vector3 to_ball(0, -kBallDrop_mm, kBallAheadOfAnkle_mm);
  return FromAxes(Vector3(1, 0, 0), Normalised(to_ball));
}

}  // namespace examples
