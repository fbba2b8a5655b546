#pragma once

#include "formats/math/euler_rotation.h"
#include "formats/math/rotation.h"
#include "formats/math/rotation_matrix3.h"
#include "formats/math/vector.h"

// A rotation as a unit quaternion: vector part x, y, z, scalar part w. +90 degrees about Z is
// (0, 0, 0.7071, 0.7071) and takes +X to +Y. The host's quaternion turns the opposite way. Angles
// are radians. Nothing fails. Threads may read one together, and each may change its own.
namespace orvane {

template <typename T>
class OrvaneQuaternion final : public OrvaneRotation<T> {
 public:
  // All components 0, which is no rotation yet.
  OrvaneQuaternion() = default;
  explicit OrvaneQuaternion(const OrvaneRotationMatrix3<T>& matrix) { SetMatrix(matrix); }
  explicit OrvaneQuaternion(const OrvaneEulerRotation<T>& rotation) { SetEuler(rotation); }
  OrvaneQuaternion(T angle_rad, const OrvaneVector3<T>& axis) { SetAngleAxis(angle_rad, axis); }

  virtual T x() const { return components_.x(); }
  virtual T y() const { return components_.y(); }
  virtual T z() const { return components_.z(); }
  virtual T w() const { return components_.w(); }

  // Each setter writes all four components and returns this quaternion.

  // Not normalised again: as good a unit as `matrix` is a rotation.
  virtual OrvaneQuaternion& Set(const OrvaneRotationMatrix3<T>& matrix) {
    return SetMatrix(matrix);
  }
  virtual OrvaneQuaternion& Set(const OrvaneQuaternion& other) { return *this = other; }
  // Reads the angles in the rotation's own order.
  virtual OrvaneQuaternion& Set(const OrvaneEulerRotation<T>& rotation) {
    return SetEuler(rotation);
  }
  // The axis may have any length; one of 5e-8 or less silently becomes the X axis.
  virtual OrvaneQuaternion& Set(T angle_rad, const OrvaneVector3<T>& axis) {
    return SetAngleAxis(angle_rad, axis);
  }

 private:
  OrvaneQuaternion& SetMatrix(const OrvaneRotationMatrix3<T>& matrix);
  OrvaneQuaternion& SetEuler(const OrvaneEulerRotation<T>& rotation);
  OrvaneQuaternion& SetAngleAxis(T angle_rad, const OrvaneVector3<T>& axis);

  OrvaneVector4<T> components_;
};

extern template class OrvaneQuaternion<double>;

using Quaternion = OrvaneQuaternion<double>;

}  // namespace orvane
