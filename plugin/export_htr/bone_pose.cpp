#include "plugin/export_htr/bone_pose.h"

#include "plugin/math/euler_rotation.h"

namespace orvane {
namespace {

// A transform taken apart.
struct Parts {
  explicit Parts(const Matrix3& matrix) { DecomposeMatrix(matrix, position, rotation, scale); }

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

BonePose BonePoseReader::Read(TimeValue time) const {
  Matrix3 transform = node_.NodeTransform(time);
  if (relative_) transform = transform * Inverse(ParentTransform(time));
  const Parts parts(transform);
  return {axes_.FilePosition(Widened(parts.position)), axes_.FileRotation(MatrixOf(parts.rotation)),
          static_cast<double>(parts.scale.x)};
}

double BonePoseReader::ParentScale(TimeValue time) const {
  return static_cast<double>(Parts(ParentTransform(time)).scale.x);
}

bool BonePoseReader::HasObjectOffset(TimeValue time) const {
  if (node_.ObjectTransform(time) != node_.NodeTransform(time)) return true;
  return parent_ != nullptr && parent_->ObjectTransform(time) != parent_->NodeTransform(time);
}

Matrix3 BonePoseReader::ParentTransform(TimeValue time) const {
  return parent_ == nullptr ? Matrix3() : parent_->NodeTransform(time);
}

}  // namespace orvane
