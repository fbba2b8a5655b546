#pragma once

#include <array>
#include <string_view>

#include "formats/math/quaternion.h"
#include "formats/math/rotation_matrix3.h"

// Rotations the slow and plain way, from textbook formulas alone, to compare the library with.
namespace orvane::reference {

// Rows of a matrix that acts on column vectors.
using Matrix = std::array<std::array<double, 3>, 3>;

// A rotation by `angle_rad` about the axis with that letter, counter-clockwise seen from its tip.
Matrix About(char axis, double angle_rad);
Matrix Product(const Matrix& left, const Matrix& right);
Matrix Of(const RotationMatrix3& matrix);
Matrix Of(const Quaternion& quaternion);

// The 24 conventions by the names of their axes, in the order in which the angles x, y, z are
// given.
struct Convention {
  unsigned int code;
  std::string_view axes;
  bool rotating;  // about axes that turn with the body, rather than fixed ones
};
extern const std::array<Convention, 24> kConventions;

// The rotation that the convention gives three angles.
Matrix FromAngles(const Convention& convention, double x, double y, double z);

// The same as a quaternion, with the sign that the product of its three turns has: x, y, z, w.
using Components = std::array<double, 4>;
Components QuaternionFromAngles(const Convention& convention, double x, double y, double z);

// Fails the test when an element differs by more than rounding.
void ExpectNear(const Matrix& actual, const Matrix& expected);
void ExpectNear(const Quaternion& actual, const Components& expected);

}  // namespace orvane::reference
