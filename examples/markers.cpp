#include "examples/markers.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace examples {
namespace {

// A limb hides what it passes at less than this, along the way of the walk.
constexpr double kHidingDistance_mm = 70;

// Where the point at `rest_mm` goes that `bone`, whose joint is at `joint_mm` now, carries along.
Vector3 Carried(std::size_t bone, const Vector3& joint_mm, const Vector3& rest_mm, const Pose& pose,
                const std::vector<Bone>& bones) {
  const Bone& carrier = bones[bone];
  const Vector3 in_bone = Rotated(carrier.rest.Transposed(), Difference(rest_mm, carrier.joint_mm));
  return Sum(joint_mm, Rotated(pose.rotations[bone], in_bone));
}

Vector3 JointOf(std::size_t bone, const Pose& pose, const std::vector<Bone>& bones) {
  const int parent = bones[bone].parent;
  if (parent < 0) return pose.hips_mm;
  const auto carrier = static_cast<std::size_t>(parent);
  return Carried(carrier, JointOf(carrier, pose, bones), bones[bone].joint_mm, pose, bones);
}

Vector3 JointOf(BoneId bone, const Pose& pose, const std::vector<Bone>& bones) {
  return JointOf(static_cast<std::size_t>(bone), pose, bones);
}

// The bones of one side of the body.
struct Side {
  double sign;  // of X
  BoneId arm, fore_arm, hand, up_leg, leg, foot, toe;
};

constexpr Side kLeft{1,
                     BoneId::kLeftArm,
                     BoneId::kLeftForeArm,
                     BoneId::kLeftHand,
                     BoneId::kLeftUpLeg,
                     BoneId::kLeftLeg,
                     BoneId::kLeftFoot,
                     BoneId::kLeftToe};
constexpr Side kRight{-1,
                      BoneId::kRightArm,
                      BoneId::kRightForeArm,
                      BoneId::kRightHand,
                      BoneId::kRightUpLeg,
                      BoneId::kRightLeg,
                      BoneId::kRightFoot,
                      BoneId::kRightToe};

// The walker's arms are held out at rest, the palms down.
void AddArm(std::vector<Marker>& markers, const Side& side,
            const std::array<std::array<std::string_view, 2>, 6>& names) {
  const auto at = [&side](double x, double y, double z) { return Vector3(side.sign * x, y, z); };
  const auto add = [&](std::size_t name, BoneId bone, const Vector3& rest_mm) {
    markers.push_back({names[name][0], names[name][1], bone, rest_mm, {}});
  };
  add(0, side.arm, at(180, 1475, 0));         // shoulder
  add(1, side.arm, at(470, 1420, -45));       // outer elbow
  add(2, side.arm, at(470, 1420, 45));        // inner elbow
  add(3, side.fore_arm, at(715, 1420, 40));   // wrist, thumb side
  add(4, side.fore_arm, at(715, 1420, -40));  // wrist, little finger side
  add(5, side.hand, at(800, 1440, 0));        // hand
}

void AddLeg(std::vector<Marker>& markers, const Side& side, const Side& other,
            const std::array<std::array<std::string_view, 2>, 7>& names) {
  const auto at = [&side](double x, double y, double z) { return Vector3(side.sign * x, y, z); };
  const auto add = [&](std::size_t name, BoneId bone, const Vector3& rest_mm,
                       std::optional<BoneId> hidden_by) {
    markers.push_back({names[name][0], names[name][1], bone, rest_mm, hidden_by});
  };
  add(0, side.up_leg, at(150, 515, 0), {});        // outer knee
  add(1, side.up_leg, at(40, 515, 0), other.leg);  // inner knee
  add(2, side.leg, at(140, 80, 0), {});            // outer ankle
  add(3, side.foot, at(95, 35, -70), {});          // heel
  add(4, side.foot, at(140, 30, 100), {});         // outer metatarsal
  add(5, side.foot, at(55, 30, 105), other.foot);  // inner metatarsal
  add(6, side.toe, at(95, 40, 160), {});           // toe
}

std::vector<Marker> HeadAndTrunkMarkers() {
  return {
      {"LFHD", "walker:LFHD", BoneId::kHead, Vector3(70, 1700, 80), {}},
      {"LBHD", "walker:LBHD", BoneId::kHead, Vector3(70, 1700, -80), {}},
      {"RBHD", "walker:RBHD", BoneId::kHead, Vector3(-70, 1700, -80), {}},
      {"RFHD", "walker:RFHD", BoneId::kHead, Vector3(-70, 1700, 80), {}},
      {"C7", "walker:C7", BoneId::kChest, Vector3(0, 1490, -70), {}},
      {"CLAV", "walker:CLAV", BoneId::kChest, Vector3(0, 1430, 75), {}},
      {"STRN", "walker:STRN", BoneId::kChest, Vector3(0, 1290, 110), {}},
      {"T10", "walker:T10", BoneId::kChest, Vector3(0, 1270, -110), {}},
      {"SACR", "walker:SACR", BoneId::kHips, Vector3(0, 1010, -110), {}},
      {"LFWT", "walker:LFWT", BoneId::kHips, Vector3(125, 1040, 95), kLeft.hand},
      {"LBWT", "walker:LBWT", BoneId::kHips, Vector3(70, 1040, -105), kLeft.hand},
      {"RBWT", "walker:RBWT", BoneId::kHips, Vector3(-70, 1040, -105), kRight.hand},
      {"RFWT", "walker:RFWT", BoneId::kHips, Vector3(-125, 1040, 95), kRight.hand},
  };
}

std::vector<Marker> MakeMarkers() {
  std::vector<Marker> markers = HeadAndTrunkMarkers();
  AddArm(markers, kLeft,
         {{{"LSHO", "walker:LSHO"},
           {"LELB", "walker:LELB"},
           {"LILB", "walker:LILB"},
           {"LWRA", "walker:LWRA"},
           {"LWRB", "walker:LWRB"},
           {"LFIN", "walker:LFIN"}}});
  AddArm(markers, kRight,
         {{{"RSHO", "walker:RSHO"},
           {"RELB", "walker:RELB"},
           {"RILB", "walker:RILB"},
           {"RWRA", "walker:RWRA"},
           {"RWRB", "walker:RWRB"},
           {"RFIN", "walker:RFIN"}}});
  AddLeg(markers, kLeft, kRight,
         {{{"LKNE", "walker:LKNE"},
           {"LKNI", "walker:LKNI"},
           {"LANK", "walker:LANK"},
           {"LHEL", "walker:LHEL"},
           {"LMT5", "walker:LMT5"},
           {"LMTI", "walker:LMTI"},
           {"LTOE", "walker:LTOE"}}});
  AddLeg(markers, kRight, kLeft,
         {{{"RKNE", "walker:RKNE"},
           {"RKNI", "walker:RKNI"},
           {"RANK", "walker:RANK"},
           {"RHEL", "walker:RHEL"},
           {"RMT5", "walker:RMT5"},
           {"RMTI", "walker:RMTI"},
           {"RTOE", "walker:RTOE"}}});
  // Two that only the capture system's own software uses.
  markers.push_back({"", "walker:LTHI", kLeft.up_leg, Vector3(170, 730, 0), kLeft.hand});
  markers.push_back({"", "walker:RTHI", kRight.up_leg, Vector3(-170, 730, 0), kRight.hand});
  return markers;
}

}  // namespace

const std::vector<Marker>& Markers() {
  static const std::vector<Marker> markers = MakeMarkers();
  return markers;
}

std::optional<Vector3> PositionOf(const Marker& marker, const Pose& pose,
                                  const std::vector<Bone>& bones) {
  const Vector3 position = Carried(static_cast<std::size_t>(marker.bone),
                                   JointOf(marker.bone, pose, bones), marker.rest_mm, pose, bones);
  if (!marker.hidden_by) return position;
  const double distance = std::abs(JointOf(*marker.hidden_by, pose, bones).z() - position.z());
  if (distance < kHidingDistance_mm) return std::nullopt;
  return position;
}

}  // namespace examples
