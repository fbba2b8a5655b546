#include "formats/bvh/channel_angles.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "formats/math/euler_rotation.h"
#include "formats/units/units.h"

namespace {

using orvane::AnglesNear;
using orvane::BvhAngles;
using orvane::EulerRotation;
using orvane::OrvaneEulerOrder;
using orvane::RotationMatrix3;

constexpr double kDegree = orvane::kRadiansPerDegree;

RotationMatrix3 About(unsigned int axis, double angle) {
  EulerRotation rotation(0, 0, 0, OrvaneEulerOrder(0));
  rotation[axis] = angle;
  return RotationMatrix3(rotation);
}

RotationMatrix3 MatrixOf(const BvhAngles& angles) {
  return About(2, angles.z) * (About(0, angles.x) * About(1, angles.y));
}

double GreatestDifference(const RotationMatrix3& left, const RotationMatrix3& right) {
  double greatest = 0;
  for (unsigned int row = 0; row < 3; ++row) {
    for (unsigned int column = 0; column < 3; ++column) {
      greatest =
          std::fmax(greatest, std::abs(left.Element(row, column) - right.Element(row, column)));
    }
  }
  return greatest;
}

TEST(BvhChannelAnglesTest, TheyAreAboutZThenXThenYOfTheTurnedAxes) {
  const BvhAngles angles = AnglesNear(MatrixOf({10 * kDegree, 20 * kDegree, 30 * kDegree}), {});
  EXPECT_NEAR(angles.z, 10 * kDegree, 1e-14);
  EXPECT_NEAR(angles.x, 20 * kDegree, 1e-14);
  EXPECT_NEAR(angles.y, 30 * kDegree, 1e-14);
}

TEST(BvhChannelAnglesTest, TheyGiveTheRotationOfEveryOrder) {
  std::mt19937_64 random(1);
  const auto angle = [&random] {
    return (static_cast<double>(random() >> 11U) * 0x1p-52 - 1.0) * 400 * kDegree;
  };
  BvhAngles previous;
  for (int turn = 0; turn < 10'000; ++turn) {
    const auto code = static_cast<std::uint32_t>(turn % 32);
    const double x = angle(), y = angle(), z = angle();
    const RotationMatrix3 rotation(EulerRotation(x, y, z, OrvaneEulerOrder(code)));
    previous = AnglesNear(rotation, previous);
    ASSERT_LT(GreatestDifference(MatrixOf(previous), rotation), 1e-14 * (1 + turn)) << turn;
  }
}

// Where elsewhere the third angle would be lost.
TEST(BvhChannelAnglesTest, TheyAreExactInGimbalLockAndNextToIt) {
  for (const double distance : {0.0, 1e-16, 1e-12, 1e-9, 2e-9, 1e-7, 1.9e-6, 1e-3}) {
    for (const double side : {-1.0, 1.0}) {
      const BvhAngles angles{0.4, side * (90 * kDegree - distance), -1.1};
      const BvhAngles found = AnglesNear(MatrixOf(angles), {});
      EXPECT_LT(GreatestDifference(MatrixOf(found), MatrixOf(angles)), 2e-9) << distance;
    }
  }
}

TEST(BvhChannelAnglesTest, InGimbalLockTheThirdAngleStays) {
  const BvhAngles found = AnglesNear(MatrixOf({0.4, 90 * kDegree, 0.2}), {0.5, 1.5, 0.3});
  EXPECT_NEAR(found.y, 0.3, 1e-15);
  EXPECT_NEAR(found.z, 0.3, 1e-12);  // 0.4 + 0.2 - 0.3
}

TEST(BvhChannelAnglesTest, AWheelTurnsOnPastHalfATurn) {
  for (unsigned int axis = 0; axis < 3; ++axis) {
    BvhAngles angles;
    for (int step = 1; step <= 1000; ++step) {
      angles = AnglesNear(About(axis, step * 7 * kDegree), angles);
    }
    const double turned = axis == 0 ? angles.x : axis == 1 ? angles.y : angles.z;
    EXPECT_NEAR(turned, 7000 * kDegree, 1e-9) << axis;
    EXPECT_NEAR(std::abs(angles.x) + std::abs(angles.y) + std::abs(angles.z), 7000 * kDegree, 1e-9);
  }
}

}  // namespace
