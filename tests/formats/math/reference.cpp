#include "tests/formats/math/reference.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>

#include "tests/support/tolerances.h"

namespace orvane::reference {

const std::array<Convention, 24> kConventions = {{
    {0, "XYZ", false},  {1, "ZYX", true},  {2, "XYX", false},  {3, "XYX", true},
    {4, "XZY", false},  {5, "YZX", true},  {6, "XZX", false},  {7, "XZX", true},
    {8, "YZX", false},  {9, "XZY", true},  {10, "YZY", false}, {11, "YZY", true},
    {12, "YXZ", false}, {13, "ZXY", true}, {14, "YXY", false}, {15, "YXY", true},
    {16, "ZXY", false}, {17, "YXZ", true}, {18, "ZXZ", false}, {19, "ZXZ", true},
    {20, "ZYX", false}, {21, "XYZ", true}, {22, "ZYZ", false}, {23, "ZYZ", true},
}};

Matrix About(char axis, double angle_rad) {
  const double c = std::cos(angle_rad);
  const double s = std::sin(angle_rad);
  switch (axis) {
    case 'X':
      return {{{1, 0, 0}, {0, c, -s}, {0, s, c}}};
    case 'Y':
      return {{{c, 0, s}, {0, 1, 0}, {-s, 0, c}}};
    default:
      return {{{c, -s, 0}, {s, c, 0}, {0, 0, 1}}};
  }
}

Matrix Product(const Matrix& left, const Matrix& right) {
  Matrix product{};
  for (std::size_t row = 0; row < 3; ++row) {
    for (std::size_t column = 0; column < 3; ++column) {
      for (std::size_t k = 0; k < 3; ++k) product[row][column] += left[row][k] * right[k][column];
    }
  }
  return product;
}

Matrix Of(const RotationMatrix3& matrix) {
  Matrix result{};
  for (unsigned int row = 0; row < 3; ++row) {
    for (unsigned int column = 0; column < 3; ++column) {
      result[row][column] = matrix[column][row];
    }
  }
  return result;
}

Matrix Of(const Quaternion& q) {
  const double x = q.x(), y = q.y(), z = q.z(), w = q.w();
  return {{{1 - 2 * (y * y + z * z), 2 * (x * y - w * z), 2 * (x * z + w * y)},
           {2 * (x * y + w * z), 1 - 2 * (x * x + z * z), 2 * (y * z - w * x)},
           {2 * (x * z - w * y), 2 * (y * z + w * x), 1 - 2 * (x * x + y * y)}}};
}

Matrix FromAngles(const Convention& convention, double x, double y, double z) {
  const Matrix first = About(convention.axes[0], x);
  const Matrix second = About(convention.axes[1], y);
  const Matrix third = About(convention.axes[2], z);
  if (convention.rotating) return Product(Product(first, second), third);
  return Product(Product(third, second), first);
}

namespace {

Components TurnAbout(char axis, double angle_rad) {
  Components turn = {0, 0, 0, std::cos(angle_rad / 2)};
  turn[static_cast<std::size_t>(axis - 'X')] = std::sin(angle_rad / 2);
  return turn;
}

// Hamilton's product: `right` is applied first.
Components Product(const Components& left, const Components& right) {
  const auto& [a, b, c, d] = left;
  const auto& [x, y, z, w] = right;
  return {d * x + a * w + b * z - c * y, d * y - a * z + b * w + c * x,
          d * z + a * y - b * x + c * w, d * w - a * x - b * y - c * z};
}

}  // namespace

Components QuaternionFromAngles(const Convention& convention, double x, double y, double z) {
  const Components first = TurnAbout(convention.axes[0], x);
  const Components second = TurnAbout(convention.axes[1], y);
  const Components third = TurnAbout(convention.axes[2], z);
  if (convention.rotating) return Product(Product(first, second), third);
  return Product(Product(third, second), first);
}

void ExpectNear(const Matrix& actual, const Matrix& expected) {
  for (std::size_t row = 0; row < 3; ++row) {
    for (std::size_t column = 0; column < 3; ++column) {
      EXPECT_NEAR(actual[row][column], expected[row][column], test::kRotationElement)
          << "row " << row << ", column " << column;
    }
  }
}

void ExpectNear(const Quaternion& actual, const Components& expected) {
  EXPECT_NEAR(actual.x(), expected[0], test::kRotationElement);
  EXPECT_NEAR(actual.y(), expected[1], test::kRotationElement);
  EXPECT_NEAR(actual.z(), expected[2], test::kRotationElement);
  EXPECT_NEAR(actual.w(), expected[3], test::kRotationElement);
}

}  // namespace orvane::reference
