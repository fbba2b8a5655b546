#include "examples/walk_text.h"

#include <cmath>
#include <cstddef>
#include <vector>

#include "examples/gait.h"
#include "examples/skeleton.h"
#include "formats/math/euler_rotation.h"
#include "formats/text/numbers.h"

namespace examples {
namespace {

using orvane::EulerRotation;

constexpr int kFrames = 120;
constexpr int kFramesPerSecond = 60;
constexpr const char* kLineEnd = "\r\n";

// A segment's values relative to its parent, as the file holds them.
struct Row {
  Vector3 translation_mm;
  EulerRotation angles;
};

// Six decimals, and no minus before a zero.
std::string Number(double value) {
  return orvane::FormatDouble(std::round(value * 1e6) / 1e6 + 0.0);
}

std::string Columns(const Row& row, double last_column) {
  std::string text;
  for (unsigned int axis = 0; axis < 3; ++axis) text += '\t' + Number(row.translation_mm[axis]);
  for (unsigned int axis = 0; axis < 3; ++axis) {
    text += '\t' + Number(row.angles[axis] / kRadiansPerDegree);
  }
  return text + '\t' + Number(last_column) + kLineEnd;
}

std::string HeaderText() {
  const std::vector<std::string> lines = {
      "# A walk of two seconds, made by make_walk",
      "[Header]",
      "# KeyWord<space>Value<CR>",
      "FileType htr",
      "DataType HTRS",
      "FileVersion 1",
      "NumSegments " + orvane::FormatInt(static_cast<int>(kBoneCount)),
      "NumFrames " + orvane::FormatInt(kFrames),
      "DataFrameRate " + orvane::FormatInt(kFramesPerSecond),
      "EulerRotationOrder ZYX",
      "CalibrationUnits mm",
      "RotationUnits Degrees",
      "GlobalAxisofGravity Y",
      "BoneLengthAxis Y",
      "ScaleFactor 1.00",
  };
  std::string text;
  for (const std::string& line : lines) text += line + kLineEnd;
  return text;
}

const Bone* ParentOf(const Bone& bone) {
  return bone.parent < 0 ? nullptr : &Skeleton()[static_cast<std::size_t>(bone.parent)];
}

std::string HierarchyText() {
  std::string text = std::string("[SegmentNames&Hierarchy]") + kLineEnd;
  text += std::string("# ObjectName<tab>ParentObjectName<CR>") + kLineEnd;
  for (const Bone& bone : Skeleton()) {
    const Bone* parent = ParentOf(bone);
    text += std::string(bone.name) + '\t';
    text += std::string(parent == nullptr ? "GLOBAL" : parent->name) + kLineEnd;
  }
  return text;
}

RotationMatrix3 RestInParent(const Bone& bone) {
  const Bone* parent = ParentOf(bone);
  return parent == nullptr ? bone.rest : parent->rest.Transposed() * bone.rest;
}

Row BaseRow(const Bone& bone) {
  const Bone* parent = ParentOf(bone);
  if (parent == nullptr) return {bone.joint_mm, EulerRotation(bone.rest)};
  const Vector3 offset = Difference(bone.joint_mm, parent->joint_mm);
  return {Rotated(parent->rest.Transposed(), offset), EulerRotation(RestInParent(bone))};
}

std::string BasePositionText() {
  std::string text = std::string("[BasePosition]") + kLineEnd;
  text += "# ObjectName<tab>Tx<tab>Ty<tab>Tz<tab>Rx<tab>Ry<tab>Rz<tab>BoneLength<CR>";
  text += kLineEnd;
  for (const Bone& bone : Skeleton()) {
    text += std::string(bone.name) + Columns(BaseRow(bone), bone.length_mm);
  }
  return text;
}

// Only the hips move; every other joint keeps its place in its parent. Rotations are what turns the
// bone from its rest.
Row FrameRow(const Bone& bone, std::size_t index, const Pose& pose) {
  const RotationMatrix3& rotation = pose.rotations[index];
  const RotationMatrix3 from_rest = RestInParent(bone).Transposed();
  if (bone.parent < 0) {
    return {Difference(pose.hips_mm, bone.joint_mm), EulerRotation(from_rest * rotation)};
  }
  const RotationMatrix3& parent = pose.rotations[static_cast<std::size_t>(bone.parent)];
  return {Vector3(), EulerRotation(from_rest * parent.Transposed() * rotation)};
}

std::string MotionText(std::size_t index, const std::vector<Pose>& poses) {
  const Bone& bone = Skeleton()[index];
  std::string text = '[' + std::string(bone.name) + ']' + kLineEnd;
  text += "# Frame<tab>Tx<tab>Ty<tab>Tz<tab>Rx<tab>Ry<tab>Rz<tab>BoneScaleFactor<CR>";
  text += kLineEnd;
  EulerRotation previous;
  int frame = 1;
  for (const Pose& pose : poses) {
    Row row = FrameRow(bone, index, pose);
    row.angles = ContinueEulerRotation(row.angles, previous);
    previous = row.angles;
    text += orvane::FormatInt(frame++) + Columns(row, 1.0);
  }
  return text;
}

}  // namespace

std::string WalkText() {
  std::vector<Pose> poses;
  poses.reserve(kFrames);
  for (int frame = 0; frame < kFrames; ++frame) {
    poses.push_back(WalkAt(static_cast<double>(frame) / kFramesPerSecond));
  }
  std::string text = HeaderText() + HierarchyText() + BasePositionText();
  for (std::size_t index = 0; index < kBoneCount; ++index) text += MotionText(index, poses);
  return text + "[EndOfFile]" + kLineEnd;
}

}  // namespace examples
