#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <string>

#include "sdk/geom/matrix3.h"
#include "sdk/geom/quat.h"
#include "tests/support/tolerances.h"

// The host's conventions for rotations, written out naively: what its own mathematics is compared
// with. Also comparisons of its types.

namespace test {

inline constexpr double kPi = 3.14159265358979323846;

inline double Radians(double degrees) { return degrees * kPi / 180.0; }

// A textbook rotation matrix for column vectors.
using Columns = std::array<std::array<double, 3>, 3>;

inline Columns Multiplied(const Columns& a, const Columns& b) {
  Columns product{};
  for (std::size_t row = 0; row < 3; ++row) {
    for (std::size_t column = 0; column < 3; ++column) {
      for (std::size_t i = 0; i < 3; ++i) product[row][column] += a[row][i] * b[i][column];
    }
  }
  return product;
}

inline Columns AboutX(double angle) {
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  return {{{1.0, 0.0, 0.0}, {0.0, c, -s}, {0.0, s, c}}};
}

inline Columns AboutY(double angle) {
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  return {{{c, 0.0, s}, {0.0, 1.0, 0.0}, {-s, 0.0, c}}};
}

inline Columns AboutZ(double angle) {
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  return {{{c, -s, 0.0}, {s, c, 0.0}, {0.0, 0.0, 1.0}}};
}

inline Columns EulerMatrix(double x, double y, double z) {
  return Multiplied(AboutZ(z), Multiplied(AboutY(y), AboutX(x)));
}

// The rotation in the host's form: the columns of the textbook matrix are the rows of the host's.
inline Matrix3 HostMatrix(const Columns& m) {
  Matrix3 matrix;
  for (std::size_t row = 0; row < 3; ++row) {
    matrix.SetRow(static_cast<int>(row),
                  {static_cast<float>(m[0][row]), static_cast<float>(m[1][row]),
                   static_cast<float>(m[2][row])});
  }
  return matrix;
}

// The host quaternion of a turn by `degrees` about a unit axis, the textbook's with w negated.
inline Quat Turn(double x, double y, double z, double degrees) {
  const double s = std::sin(Radians(degrees) / 2.0);
  const double c = std::cos(Radians(degrees) / 2.0);
  return {static_cast<float>(x * s), static_cast<float>(y * s), static_cast<float>(z * s),
          static_cast<float>(-c)};
}

inline void ExpectNear(const Point3& actual, const Point3& expected, double tolerance) {
  EXPECT_NEAR(actual.x, expected.x, tolerance);
  EXPECT_NEAR(actual.y, expected.y, tolerance);
  EXPECT_NEAR(actual.z, expected.z, tolerance);
}

inline void ExpectNear(const Matrix3& actual, const Matrix3& expected, double tolerance) {
  for (int row = 0; row < 4; ++row) {
    SCOPED_TRACE("row " + std::to_string(row));
    ExpectNear(actual.GetRow(row), expected.GetRow(row), tolerance);
  }
}

// Whether the two are the same rotation: q and -q are.
inline void ExpectSameRotation(const Quat& actual, const Quat& expected,
                               double tolerance = kSingleElement) {
  const double dot =
      static_cast<double>(actual.x) * expected.x + static_cast<double>(actual.y) * expected.y +
      static_cast<double>(actual.z) * expected.z + static_cast<double>(actual.w) * expected.w;
  const float sign = dot < 0.0 ? -1.0F : 1.0F;
  EXPECT_NEAR(actual.x, sign * expected.x, tolerance);
  EXPECT_NEAR(actual.y, sign * expected.y, tolerance);
  EXPECT_NEAR(actual.z, sign * expected.z, tolerance);
  EXPECT_NEAR(actual.w, sign * expected.w, tolerance);
}

}  // namespace test
