#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>

#include "formats/math/euler_rotation.h"
#include "formats/math/quaternion.h"
#include "formats/math/rotation_matrix3.h"
#include "tests/formats/math/reference.h"

namespace orvane {
namespace {

using reference::Convention;

class Rotations : public ::testing::TestWithParam<Convention> {
 protected:
  // Every conversion that starts from these angles, against the reference.
  void Check(double x, double y, double z) {
    SCOPED_TRACE(::testing::Message() << "angles " << x << ", " << y << ", " << z);
    const OrvaneEulerOrder order(GetParam().code);
    const EulerRotation euler(x, y, z, order);
    const reference::Matrix expected = reference::FromAngles(GetParam(), x, y, z);

    const RotationMatrix3 matrix(euler);
    reference::ExpectNear(reference::Of(matrix), expected);
    reference::ExpectNear(reference::Of(Quaternion(euler)), expected);
    reference::ExpectNear(Quaternion(euler), reference::QuaternionFromAngles(GetParam(), x, y, z));
    reference::ExpectNear(reference::Of(Quaternion(matrix)), expected);

    EulerRotation back(0, 0, 0, order);
    back.Set(matrix);
    reference::ExpectNear(reference::Of(RotationMatrix3(back)), expected);
    for (unsigned int index = 0; index < 3; ++index) EXPECT_LE(std::abs(back[index]), kPi);
    ExpectPrincipalAngles(back);

    const EulerRotation reordered = EulerRotation().Set(euler);
    reference::ExpectNear(reference::Of(RotationMatrix3(reordered)), expected);
    ++checked_;
  }

  // Of the two triples that give a rotation, the one with the middle angle in its own half; where
  // the outer axes coincide, the whole rotation about them in one angle.
  void ExpectPrincipalAngles(const EulerRotation& angles) {
    const OrvaneEulerOrder::Axes axes = angles.order().Decode();
    const double middle = axes.odd_parity ? -angles[1] : angles[1];
    const double leaning = axes.repeats_first_axis ? std::sin(middle) : std::cos(middle);
    EXPECT_GE(leaning, 0.0);
    if (leaning > kDegenerate) return;
    EXPECT_EQ(angles[axes.rotating_frame ? 0 : 2], 0.0);
  }

  static constexpr double kPi = 3.141592653589793;
  static constexpr double kDegenerate = 1e-6;  // well below where the axes count as one
  int checked_ = 0;
};

TEST_P(Rotations, AgreeOnAGridOf45Degrees) {
  for (int x = -4; x <= 4; ++x) {
    for (int y = -4; y <= 4; ++y) {
      for (int z = -4; z <= 4; ++z) Check(x * kPi / 4, y * kPi / 4, z * kPi / 4);
    }
  }
  EXPECT_EQ(checked_, 9 * 9 * 9);
}

TEST_P(Rotations, AgreeOnRandomAngles) {
  std::mt19937_64 random(31 + GetParam().code);
  std::uniform_real_distribution<double> angle(-7.0, 7.0);
  for (int round = 0; round < 200; ++round) {
    const double x = angle(random);
    const double y = angle(random);
    const double z = angle(random);
    Check(x, y, z);
  }
  EXPECT_EQ(checked_, 200);
}

INSTANTIATE_TEST_SUITE_P(AllOrders, Rotations, ::testing::ValuesIn(reference::kConventions),
                         [](const auto& convention) {
                           const bool rotating = convention.param.rotating;
                           return std::string(convention.param.axes) + (rotating ? "r" : "s");
                         });

TEST(Products, AgreeWithTheReferenceOnRandomRotations) {
  std::mt19937_64 random(47);
  std::uniform_real_distribution<double> angle(-4.0, 4.0);
  for (int round = 0; round < 500; ++round) {
    EulerRotation left, right;
    for (unsigned int index = 0; index < 3; ++index) {
      left[index] = angle(random);
      right[index] = angle(random);
    }
    const RotationMatrix3 a(left), b(right);
    reference::ExpectNear(reference::Of(a * b),
                          reference::Product(reference::Of(a), reference::Of(b)));
  }
}

}  // namespace
}  // namespace orvane
