#include "examples/gait.h"

#include <algorithm>
#include <cmath>

#include "examples/curve.h"

namespace examples {
namespace {

// A phase counts cycles of one leg from its heel strike: 0 to kToeOff the foot is on the floor,
// then it swings forward. The right leg is half a cycle behind the left.
constexpr double kMidStance = 0.28;  // the ankle passes below the hips
constexpr double kHeelRise = 0.36;
constexpr double kToeOff = 0.62;

constexpr double kFootTrack_mm = 75;  // half the distance between the two footprints
constexpr double kToeOut_deg = 6;
constexpr double kSwingLift_mm = 40;

double Wave(double cycles) { return std::cos(2 * 3.141592653589793 * cycles); }

// Slopes in degrees; positive is toes down.
const Curve& FootPitch() {
  static const Curve curve({{0.0, -20},
                            {0.08, 0},
                            {kHeelRise, 0},
                            {0.5, 17},
                            {kToeOff, 56},
                            {0.68, 58},
                            {0.84, 8},
                            {0.93, -14},
                            {1.0, -20}});
  return curve;
}

const Curve& ToePitch() {
  static const Curve curve({{0.0, -18},
                            {0.08, 0},
                            {0.54, 0},
                            {kToeOff, 6},
                            {0.72, 26},
                            {0.84, 6},
                            {0.93, -14},
                            {1.0, -18}});
  return curve;
}

RotationMatrix3 FootRotation(double phase, double side) {
  return AboutY(side * kToeOut_deg) * AboutX(FootPitch().At(phase)) * FootAtRest();
}

// Where the ankle is while the foot is on the floor, seen from the spot below it when the foot is
// flat: the foot turns about its heel at first and about its ball at last.
Vector3 AnkleInStance(double phase, double side) {
  const Vector3 pivot_ahead = phase < kMidStance ? Vector3(0, 0, -kHeelBehindAnkle_mm)
                                                 : Vector3(0, kBallHeight_mm, kBallAheadOfAnkle_mm);
  const Vector3 ankle_above(0, kAnkleHeight_mm, 0);
  const RotationMatrix3 yaw = AboutY(side * kToeOut_deg);
  const Vector3 from_pivot = Difference(ankle_above, pivot_ahead);
  return Rotated(yaw, Sum(pivot_ahead, Rotated(AboutX(FootPitch().At(phase)), from_pivot)));
}

// As above, in the air: from where the foot leaves the floor to its next footprint.
Vector3 AnkleInSwing(double phase, double side, double stride_mm) {
  constexpr double kStep = 1e-4;
  constexpr double kWidth = 1 - kToeOff;
  const Vector3 leave = AnkleInStance(kToeOff, side);
  const Vector3 leave_slope =
      Scaled(Difference(leave, AnkleInStance(kToeOff - kStep, side)), kWidth / kStep);
  const Vector3 strike = Sum(AnkleInStance(0, side), Vector3(0, 0, stride_mm));
  const Vector3 strike_slope =
      Scaled(Difference(AnkleInStance(kStep, side), AnkleInStance(0, side)), kWidth / kStep);
  const double u = (phase - kToeOff) / kWidth;
  Vector3 ankle;
  for (unsigned int axis = 0; axis < 3; ++axis) {
    ankle[axis] = Hermite(u, leave[axis], leave_slope[axis], strike[axis], strike_slope[axis]);
  }
  const double lift = std::sin(3.141592653589793 * u);
  ankle[1] += kSwingLift_mm * lift * lift;
  return ankle;
}

// One leg, and how many cycles it is behind the left one.
struct Leg {
  BoneId up_leg;
  double side;  // 1 left, -1 right
  double behind;
};

constexpr Leg kLeftLeg = {BoneId::kLeftUpLeg, 1, 0};
constexpr Leg kRightLeg = {BoneId::kRightUpLeg, -1, 0.5};

// Each cycle of the leg begins with a new footprint.
Vector3 Ankle(const Walker& walker, const Leg& leg, double left_cycles) {
  const double footprint = std::floor(left_cycles - leg.behind);
  const double phase = left_cycles - leg.behind - footprint;
  const Vector3 ankle = phase < kToeOff ? AnkleInStance(phase, leg.side)
                                        : AnkleInSwing(phase, leg.side, walker.stride_mm);
  const double ahead_mm =
      (footprint + leg.behind + kMidStance - walker.first_phase) * walker.stride_mm;
  return Sum(ankle, Vector3(leg.side * kFootTrack_mm, 0, ahead_mm));
}

RotationMatrix3& At(Pose& pose, BoneId bone) {
  return pose.rotations[static_cast<std::size_t>(bone)];
}

BoneId Next(BoneId bone, std::size_t steps) {
  return static_cast<BoneId>(static_cast<std::size_t>(bone) + steps);
}

Vector3 HipJoint(const Walker& walker, const Pose& pose, BoneId up_leg) {
  const std::vector<Bone>& bones = walker.bones;
  const Bone& leg = bones[static_cast<std::size_t>(up_leg)];
  const Vector3 offset = Difference(leg.joint_mm, bones.front().joint_mm);
  return Sum(pose.hips_mm, Rotated(pose.rotations.front(), offset));
}

// Bends hip and knee so that the ankle comes to its place, the knee forward: two bones and the way
// between their ends make a triangle.
void PoseLeg(Pose& pose, const Walker& walker, const Leg& leg, double left_cycles) {
  const double thigh_mm = kThigh_mm * walker.proportions.thigh;
  const double shank_mm = kShank_mm * walker.proportions.shank;
  const double cycles = left_cycles - leg.behind;
  const double phase = cycles - std::floor(cycles);
  const BoneId up_leg = leg.up_leg;
  const RotationMatrix3 yaw = AboutY(leg.side * kToeOut_deg);
  const Vector3 to_ankle =
      Difference(Ankle(walker, leg, left_cycles), HipJoint(walker, pose, up_leg));
  const double reach = std::min(Length(to_ankle), thigh_mm + shank_mm);
  const double cosine =
      (thigh_mm * thigh_mm + reach * reach - shank_mm * shank_mm) / (2 * thigh_mm * reach);
  const double sine = std::sqrt(std::max(0.0, 1 - cosine * cosine));

  const Vector3 along = Normalised(to_ankle);
  const Vector3 hinge = Normalised(Cross(yaw[2], along));
  const Vector3 ahead = Cross(along, hinge);
  const Vector3 thigh = Sum(Scaled(along, cosine), Scaled(ahead, sine));
  const Vector3 shank = Normalised(Difference(Scaled(along, reach), Scaled(thigh, thigh_mm)));
  At(pose, up_leg) = FromAxes(hinge, thigh);
  At(pose, Next(up_leg, 1)) = FromAxes(hinge, shank);
  At(pose, Next(up_leg, 2)) = FootRotation(phase, leg.side);
  At(pose, Next(up_leg, 3)) = yaw * AboutX(90 + ToePitch().At(phase));
}

// Arms hang beside the body and swing against the leg of their side; elbows bend more in front.
void PoseArm(Pose& pose, BoneId shoulder, double leg_cycles, double side) {
  const double forward = -Wave(leg_cycles - 0.02);
  const double swing_deg = 2 + 21 * forward;
  const double elbow_deg = 20 + 10 * -Wave(leg_cycles - 0.06);
  const RotationMatrix3& chest = At(pose, BoneId::kChest);
  At(pose, shoulder) = chest * AboutZ(-side * (94 + forward)) * AboutX(-2 * forward);
  const RotationMatrix3 hanging = AboutZ(-side * 171);
  At(pose, Next(shoulder, 1)) = chest * AboutX(-swing_deg) * hanging;
  const RotationMatrix3 forearm = AboutX(-swing_deg - elbow_deg) * AboutZ(-side * 174);
  At(pose, Next(shoulder, 2)) = chest * forearm;
  At(pose, Next(shoulder, 3)) =
      chest * AboutX(-swing_deg - elbow_deg - 6 - 3 * forward) * AboutZ(-side * 178);
}

// The pelvis turns with the leg in front and drops on the side that swings; the chest turns against
// it; the head looks ahead.
void PoseTrunk(Pose& pose, double left_cycles) {
  const double turn = Wave(left_cycles);
  const double lean = Wave(left_cycles - 0.3);
  const double nod = Wave(2 * (left_cycles - 0.3));
  At(pose, BoneId::kHips) = AboutY(-5 * turn) * AboutX(4 + nod) * AboutZ(3 * lean);
  At(pose, BoneId::kSpine) = AboutY(-turn) * AboutX(2 + 0.5 * nod) * AboutZ(0.5 * lean);
  At(pose, BoneId::kChest) = AboutY(5 * turn) * AboutX(4) * AboutZ(-1.5 * lean);
  At(pose, BoneId::kNeck) = AboutY(2 * turn) * AboutX(12 - nod) * AboutZ(-0.8 * lean);
  At(pose, BoneId::kHead) = AboutY(0.5 * turn) * AboutX(3 - 1.5 * nod) * AboutZ(-0.3 * lean);
}

}  // namespace

Pose WalkAt(double time_s, const Walker& walker) {
  const double left_cycles = time_s / kCycle_s + walker.first_phase;
  const Vector3 hip =
      Fitted(Skeleton()[static_cast<std::size_t>(BoneId::kLeftUpLeg)].joint_mm, walker.proportions);
  Pose pose;
  // Highest and furthest to the side over the leg that stands.
  pose.hips_mm = Vector3(18 * Wave(left_cycles - 0.3), hip.y() + 18 * Wave(2 * (left_cycles - 0.3)),
                         walker.stride_mm * time_s / kCycle_s);
  PoseTrunk(pose, left_cycles);
  PoseLeg(pose, walker, kLeftLeg, left_cycles);
  PoseLeg(pose, walker, kRightLeg, left_cycles);
  PoseArm(pose, BoneId::kLeftShoulder, left_cycles, 1);
  PoseArm(pose, BoneId::kRightShoulder, left_cycles - 0.5, -1);
  return pose;
}

}  // namespace examples
