#pragma once

#include "platform/export.h"
#include "sdk/geom/point3.h"
#include "sdk/geom/quat.h"

// Rotations in double precision, for the computations between what is read and what is stored in
// single precision. The components are those of Quat, and Product(a, b) is the rotation whose
// Matrix3 is the product of a's and b's: a is applied first.

namespace host {

struct Quaternion {
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
  double w = 1.0;
};

// Three angles in radians, or a rotation vector.
struct Vector {
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
};

// `rotation` with unit length; the identity for the zero quaternion.
SKELDER_API Quaternion Normalized(const Quaternion& rotation);
SKELDER_API Quaternion FromQuat(const Quat& rotation);

// Rounded, with the sign of `rotation`.
SKELDER_API Quat ToQuat(const Quaternion& rotation);

SKELDER_API Quaternion Product(const Quaternion& first, const Quaternion& second);
SKELDER_API Quaternion Conjugate(const Quaternion& rotation);
SKELDER_API double Dot(const Quaternion& left, const Quaternion& right);

// `rotation` with the one of its two signs that is nearer to `reference`.
SKELDER_API Quaternion NearerSign(const Quaternion& rotation, const Quaternion& reference);

// Half the rotation vector of a unit quaternion, and back.
SKELDER_API Vector Log(const Quaternion& rotation);
SKELDER_API Quaternion Exp(const Vector& half_rotation);

// Spherical interpolation from `from` (0) to `to` (1) on the arc between the two quaternions as
// they are: give them NearerSign first to take the shorter way.
SKELDER_API Quaternion Slerp(const Quaternion& from, const Quaternion& to, double fraction);

// The rotation of the angles as QuatToEuler gives them, and those angles in double precision.
SKELDER_API Quaternion FromEuler(const Vector& angles);
SKELDER_API Vector ToEuler(const Quaternion& rotation);

}  // namespace host
