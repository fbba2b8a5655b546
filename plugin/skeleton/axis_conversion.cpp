#include "plugin/skeleton/axis_conversion.h"

#include <numbers>

#include "formats/math/euler_rotation.h"
#include "formats/math/z_up.h"

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

// A: from where a host root bone stands to where its segment stands in the file.
RotationMatrix3 HostRootToFile() { return RotationX(kHalfTurn) * RotationZ(-kQuarterTurn); }

}  // namespace

// Intended: products of these very matrices, in this order, and no general change of axes. Files
// and scenes made so far rely on their last digits, and on where their angles land.
AxisConversion::AxisConversion(bool is_root)
    : is_root_(is_root), host_right_(BoneToSegment()), file_left_(BoneToSegment()) {
  host_left_ = host_right_.Transposed();
  file_right_ = file_left_.Transposed();
  if (!is_root_) return;
  host_left_ = RootRotation() * host_left_;
  file_left_ = HostRootToFile() * file_left_;
}

Vector3 AxisConversion::HostPosition(const Vector3& file_position) const {
  const Vector3& position = file_position;
  if (is_root_) return ZUpFromYUp(position);
  return Vector3(position.y(), position.z(), position.x());
}

RotationMatrix3 AxisConversion::HostRotation(const RotationMatrix3& file_rotation) const {
  return host_left_ * file_rotation * host_right_;
}

Vector3 AxisConversion::FilePosition(const Vector3& host_position) const {
  const Vector3& position = host_position;
  if (is_root_) return Vector3(position.x(), position.z(), -position.y());
  return Vector3(position.z(), position.x(), position.y());
}

RotationMatrix3 AxisConversion::FileRotation(const RotationMatrix3& host_rotation) const {
  return file_left_ * host_rotation * file_right_;
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
