#include "formats/math/plain_rotation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

namespace orvane {
namespace {

void ExpectSameBits(double left, double right) {
  EXPECT_EQ(std::isnan(left), std::isnan(right));
  if (std::isnan(left)) return;
  EXPECT_EQ(left, right);
  EXPECT_EQ(std::signbit(left), std::signbit(right));
}

void ExpectSameBits(const PlainRotation& plain, const RotationMatrix3& matrix) {
  for (unsigned row = 0; row < 3; ++row) {
    for (unsigned column = 0; column < 3; ++column) {
      ExpectSameBits(plain.Element(row, column), matrix.Element(row, column));
      ExpectSameBits(plain.Matrix().Element(row, column), matrix.Element(row, column));
    }
  }
}

constexpr double kNowhere = std::numeric_limits<double>::infinity();

constexpr double kAngles[][3] = {
    {0.0, 0.0, 0.0}, {-0.0, 0.0, -0.0}, {0.1, -2.0, 3.0}, {1e9, -7.0, 4e-9}, {kNowhere, 1.0, 2.0}};

TEST(PlainRotationTest, HasTheNumbersOfAMatrix) {
  ExpectSameBits(PlainRotation(), RotationMatrix3());
  for (std::uint32_t code = 0; code < 32; ++code) {
    for (const auto& [x, y, z] : kAngles) {
      const EulerRotation rotation(x, y, z, OrvaneEulerOrder(code));
      ExpectSameBits(PlainRotation(rotation), RotationMatrix3(rotation));
    }
  }
}

TEST(PlainRotationTest, MakesTheProductsOfMatrices) {
  for (const auto& [a, b, c] : kAngles) {
    const EulerRotation left(a, b, c);
    for (const auto& [x, y, z] : kAngles) {
      const EulerRotation right(x, y, z);
      ExpectSameBits(PlainRotation(left) * PlainRotation(right),
                     RotationMatrix3(left) * RotationMatrix3(right));
    }
  }
}

// A turn about Y takes +Z to +X.
TEST(PlainRotationTest, MovesFromAnOrigin) {
  const auto moved =
      PlainRotation(EulerRotation(0, 1.5707963267948966, 0)).Moved({1, 2, 3}, {0, 5, 10});
  EXPECT_NEAR(moved[0], 11, 1e-12);
  EXPECT_NEAR(moved[1], 7, 1e-12);
  EXPECT_NEAR(moved[2], 3, 1e-12);
}

}  // namespace
}  // namespace orvane
