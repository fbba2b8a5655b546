#include "examples/geometry.h"

#include <cmath>

#include "formats/math/euler_rotation.h"

namespace examples {

using orvane::EulerRotation;

Vector3 Sum(const Vector3& a, const Vector3& b) {
  return Vector3(a.x() + b.x(), a.y() + b.y(), a.z() + b.z());
}

Vector3 Difference(const Vector3& a, const Vector3& b) { return Sum(a, Scaled(b, -1)); }

Vector3 Scaled(const Vector3& vector, double factor) {
  return Vector3(vector.x() * factor, vector.y() * factor, vector.z() * factor);
}

Vector3 Cross(const Vector3& a, const Vector3& b) {
  return Vector3(a.y() * b.z() - a.z() * b.y(), a.z() * b.x() - a.x() * b.z(),
                 a.x() * b.y() - a.y() * b.x());
}

double Length(const Vector3& vector) { return std::hypot(vector.x(), vector.y(), vector.z()); }

Vector3 Normalised(const Vector3& vector) { return Scaled(vector, 1 / Length(vector)); }

Vector3 Rotated(const RotationMatrix3& rotation, const Vector3& vector) {
  return Sum(Sum(Scaled(rotation[0], vector.x()), Scaled(rotation[1], vector.y())),
             Scaled(rotation[2], vector.z()));
}

RotationMatrix3 AboutX(double degrees) {
  return RotationMatrix3(EulerRotation(degrees * kRadiansPerDegree, 0, 0));
}

RotationMatrix3 AboutY(double degrees) {
  return RotationMatrix3(EulerRotation(0, degrees * kRadiansPerDegree, 0));
}

RotationMatrix3 AboutZ(double degrees) {
  return RotationMatrix3(EulerRotation(0, 0, degrees * kRadiansPerDegree));
}

RotationMatrix3 FromAxes(const Vector3& x, const Vector3& y) {
  RotationMatrix3 rotation;
  rotation[0] = x;
  rotation[1] = y;
  rotation[2] = Cross(x, y);
  return rotation;
}

}  // namespace examples
