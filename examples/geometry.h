#pragma once

#include "formats/math/rotation_matrix3.h"
#include "formats/math/vector.h"

// The little vector arithmetic that the generator needs. File space: X to the walker's left, Y up,
// Z forward; millimetres and radians.
namespace examples {

using orvane::RotationMatrix3;
using orvane::Vector3;

inline constexpr double kRadiansPerDegree = 0.017453292519943295;

Vector3 Sum(const Vector3& a, const Vector3& b);
Vector3 Difference(const Vector3& a, const Vector3& b);
Vector3 Scaled(const Vector3& vector, double factor);
Vector3 Cross(const Vector3& a, const Vector3& b);
double Length(const Vector3& vector);
Vector3 Normalised(const Vector3& vector);
Vector3 Rotated(const RotationMatrix3& rotation, const Vector3& vector);

// Rotations about one axis. `degrees` counts counter-clockwise, seen from the axis' tip.
RotationMatrix3 AboutX(double degrees);
RotationMatrix3 AboutY(double degrees);
RotationMatrix3 AboutZ(double degrees);

// The rotation that takes X to `x` and Y to `y`, which are units at right angles.
RotationMatrix3 FromAxes(const Vector3& x, const Vector3& y);

}  // namespace examples
