#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "host/base/compose.h"
#include "host/base/quaternion.h"
#include "sdk/geom/matrix3.h"
#include "tests/support/host_geometry.h"
#include "tests/support/tolerances.h"

namespace {

using test::Radians;
using test::Turn;

Point3 AnglesOf(const Quat& rotation) {
  float angles[3] = {-1.0F, -1.0F, -1.0F};
  QuatToEuler(rotation, angles);
  return {angles[0], angles[1], angles[2]};
}

// Rz(z) * Ry(y) * Rx(x) of the angles must be the rotation itself.
void ExpectAnglesGiveTheRotation(const Quat& rotation) {
  const Point3 angles = AnglesOf(rotation);
  test::ExpectNear(test::HostMatrix(test::EulerMatrix(angles.x, angles.y, angles.z)),
                   host::ComposeMatrix(Point3(), rotation, Point3(1, 1, 1)), test::kSingleElement);
}

TEST(QuatToEuler, GivesTheAngleAboutEachAxis) {
  for (int degrees = -85; degrees <= 85; degrees += 5) {
    const auto angle = static_cast<float>(Radians(degrees));
    test::ExpectNear(AnglesOf(Turn(1, 0, 0, degrees)), Point3(angle, 0, 0), test::kSingleAngle_rad);
    test::ExpectNear(AnglesOf(Turn(0, 1, 0, degrees)), Point3(0, angle, 0), test::kSingleAngle_rad);
    test::ExpectNear(AnglesOf(Turn(0, 0, 1, degrees)), Point3(0, 0, angle), test::kSingleAngle_rad);
  }
}

TEST(QuatToEuler, GivesTheIdentityNoAngles) {
  EXPECT_EQ(AnglesOf(Quat()), Point3());
  EXPECT_EQ(AnglesOf(Quat(0, 0, 0, -1)), Point3());
}

TEST(QuatToEuler, TakesBothSignsOfAQuaternionAlike) {
  const Quat turn = Turn(0.6, 0.0, 0.8, 40);
  EXPECT_EQ(AnglesOf(turn), AnglesOf(Quat(-turn.x, -turn.y, -turn.z, -turn.w)));
}

TEST(QuatToEuler, ReproducesEveryRotationOfA45DegreeGrid) {
  for (int x = -180; x <= 180; x += 45) {
    for (int y = -180; y <= 180; y += 45) {
      for (int z = -180; z <= 180; z += 45) {
        SCOPED_TRACE(std::to_string(x) + " " + std::to_string(y) + " " + std::to_string(z));
        ExpectAnglesGiveTheRotation(
            host::ToQuat(host::FromEuler({Radians(x), Radians(y), Radians(z)})));
      }
    }
  }
}

TEST(QuatToEuler, ReproducesRandomRotations) {
  std::mt19937 random(4);
  std::normal_distribution<float> component;
  for (int i = 0; i < 1000; ++i) {
    ExpectAnglesGiveTheRotation(
        Quat(component(random), component(random), component(random), component(random)));
  }
}

// A root bone at rest stands upright: its pitch is exactly -90 degrees, where the first and the
// third angle turn about the same axis.
TEST(QuatToEuler, HasNoThirdAngleAtThePole) {
  struct Case {
    Quat rotation;
    Point3 degrees;
  };
  const Case cases[] = {
      {Quat(0.5F, 0.5F, -0.5F, -0.5F), Point3(90, 90, 0)},
      {Quat(0.0F, 0.70710678F, 0.0F, -0.70710678F), Point3(0, 90, 0)},
      {Quat(0.0F, -0.70710678F, 0.0F, -0.70710678F), Point3(0, -90, 0)},
      {Quat(0.70710678F, 0.0F, 0.70710678F, 0.0F), Point3(180, -90, 0)},
      {Quat(-0.5F, -0.5F, -0.5F, -0.5F), Point3(-90, -90, 0)},
  };
  for (const Case& test_case : cases) {
    const Point3 angles = AnglesOf(test_case.rotation);
    SCOPED_TRACE(test_case.degrees.x);
    EXPECT_NEAR(std::abs(angles.x), std::abs(Radians(test_case.degrees.x)), test::kSingleAngle_rad);
    EXPECT_NEAR(angles.y, Radians(test_case.degrees.y), test::kSingleAngle_rad);
    EXPECT_EQ(angles.z, 0.0F);
    ExpectAnglesGiveTheRotation(test_case.rotation);
  }
}

TEST(QuatToEuler, TreatsAPitchThatIsNotQuiteAPoleAsUsual) {
  const Quat nearly = host::ToQuat(host::FromEuler({0.3, Radians(89.9), -0.4}));
  const Point3 angles = AnglesOf(nearly);
  EXPECT_NE(angles.z, 0.0F);
  ExpectAnglesGiveTheRotation(nearly);
}

TEST(QuatToEuler, ComputesInDoublePrecision) {
  const host::Vector angles = host::ToEuler(host::FromEuler({0.3, -0.9, 2.1}));
  EXPECT_NEAR(angles.x, 0.3, test::kAngle_rad);
  EXPECT_NEAR(angles.y, -0.9, test::kAngle_rad);
  EXPECT_NEAR(angles.z, 2.1, test::kAngle_rad);
}

TEST(QuatToEuler, BelowABillionthTheThirdAngleIsZero) {
  const host::Vector below = host::ToEuler(host::FromEuler({0.3, Radians(90) - 5e-10, 0.4}));
  EXPECT_EQ(below.z, 0.0);
  EXPECT_NEAR(below.x, -0.1, 1e-8);
  const host::Vector above = host::ToEuler(host::FromEuler({0.3, Radians(90) - 2e-9, 0.4}));
  EXPECT_NEAR(above.x, 0.3, 1e-6);
  EXPECT_NEAR(above.z, 0.4, 1e-6);
}

}  // namespace
