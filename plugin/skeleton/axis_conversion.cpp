#include "plugin/skeleton/axis_conversion.h"

#include <numbers>

#include "plugin/math/euler_rotation.h"
#include "plugin/math/z_up.h"

namespace orvane {
namespace {

constexpr double kHalfTurn = std::numbers::pi;
constexpr double kQuarterTurn = std::numbers::pi / 2;

RotationMatrix3 RotationX(double angle_rad) {
  return RotationMatrix3(EulerRotation(angle_rad, 0, 0));
}

RotationMatrix3 RotationY(double angle_rad) {
  return RotationMatrix3(EulerRotation(0, angle_rad, 0));
}

RotationMatrix3 RotationZ(double angle_rad) {
  return RotationMatrix3(EulerRotation(0, 0, angle_rad));
}

// C: from the axes of a host bone to those of a file segment.
RotationMatrix3 BoneToSegment() { return RotationZ(kQuarterTurn) * RotationX(kQuarterTurn); }

// F: the rotation of a host root bone whose segment is not rotated in the file.
RotationMatrix3 RootRotation() { return RotationY(-kQuarterTurn) * RotationX(kHalfTurn); }

}  // namespace

AxisConversion::AxisConversion(bool is_root) : is_root_(is_root), right_(BoneToSegment()) {
  left_ = right_.Transposed();
  if (is_root_) left_ = RootRotation() * left_;
}

Vector3 AxisConversion::Position(const Vector3& position) const {
  if (is_root_) return ZUpFromYUp(position);
  return Vector3(position.y(), position.z(), position.x());
}

RotationMatrix3 AxisConversion::Rotation(const RotationMatrix3& rotation) const {
  return left_ * rotation * right_;
}

Point3 HostPoint(const Vector3& position) {
  return Point3(static_cast<float>(position.x()), static_cast<float>(position.y()),
                static_cast<float>(position.z()));
}

Quat HostQuaternion(const Quaternion& rotation) {
  return Quat(static_cast<float>(rotation.x()), static_cast<float>(rotation.y()),
              static_cast<float>(rotation.z()), static_cast<float>(-rotation.w()));
}

}  // namespace orvane
