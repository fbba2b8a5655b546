#include "plugin/export_htr/bone_pose.h"

#include "formats/math/euler_rotation.h"

namespace orvane {
namespace {

// A transform taken apart.
struct Decomposition {
  explicit Decomposition(const Matrix3& matrix) {
    DecomposeMatrix(matrix, position, rotation, scale);
  }

  Point3 position;
  Quat rotation;
  Point3 scale;
};

Vector3 Widened(const Point3& point) {
  return Vector3(static_cast<double>(point.x), static_cast<double>(point.y),
                 static_cast<double>(point.z));
}

// By way of the host's own angles.
RotationMatrix3 MatrixOf(const Quat& rotation) {
  float angles[3];
  QuatToEuler(rotation, angles);
  return RotationMatrix3(EulerRotation(static_cast<double>(angles[0]),
                                       static_cast<double>(angles[1]),
                                       static_cast<double>(angles[2])));
}

}  // namespace

BoneTransforms BonePoseReader::Read(TimeValue time) const {
  BoneTransforms transforms;
  transforms.time = time;
  transforms.node = node_.NodeTransform(time);
  if (parent_ != nullptr) transforms.parent = parent_->NodeTransform(time);
  return transforms;
}

BonePose BonePoseReader::Pose(const BoneTransforms& transforms) const {
  const Decomposition parts(relative_ ? transforms.node * Inverse(transforms.parent)
                                      : transforms.node);
  return {axes_.FilePosition(Widened(parts.position)), axes_.FileRotation(MatrixOf(parts.rotation)),
          static_cast<double>(parts.scale.x)};
}

bool BonePoseReader::HasObjectOffset(const BoneTransforms& transforms) const {
  if (node_.ObjectTransform(transforms.time) != transforms.node) return true;
  return parent_ != nullptr && parent_->ObjectTransform(transforms.time) != transforms.parent;
}

double ParentScale(const BoneTransforms& transforms) {
  return static_cast<double>(Decomposition(transforms.parent).scale.x);
}

}  // namespace orvane
