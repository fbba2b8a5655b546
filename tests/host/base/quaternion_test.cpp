#include "host/base/quaternion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "host/base/compose.h"
#include "tests/support/host_geometry.h"
#include "tests/support/tolerances.h"

namespace host {
namespace {

using test::ExpectNear;
using test::Turn;

const Point3 kOne(1.0F, 1.0F, 1.0F);

Quaternion RandomRotation(std::mt19937& random) {
  std::normal_distribution<double> component;
  return Normalized({component(random), component(random), component(random), component(random)});
}

void ExpectNearQuaternion(const Quaternion& actual, const Quaternion& expected) {
  EXPECT_NEAR(actual.x, expected.x, test::kRotationElement);
  EXPECT_NEAR(actual.y, expected.y, test::kRotationElement);
  EXPECT_NEAR(actual.z, expected.z, test::kRotationElement);
  EXPECT_NEAR(actual.w, expected.w, test::kRotationElement);
}

TEST(Compose, TurnsTheOppositeWayToTheTextbook) {
  const Matrix3 matrix = ComposeMatrix(Point3(), Quat(0.0F, 0.0F, 0.70710678F, -0.70710678F), kOne);
  const Matrix3 expected({0, 1, 0}, {-1, 0, 0}, {0, 0, 1}, {0, 0, 0});
  ExpectNear(matrix, expected, test::kSingleElement);
}

TEST(Compose, AgreesWithTextbookMatricesAboutEachAxis) {
  for (int degrees = -360; degrees <= 360; degrees += 45) {
    SCOPED_TRACE(degrees);
    const double angle = test::Radians(degrees);
    ExpectNear(ComposeMatrix(Point3(), Turn(1, 0, 0, degrees), kOne),
               test::HostMatrix(test::AboutX(angle)), test::kSingleElement);
    ExpectNear(ComposeMatrix(Point3(), Turn(0, 1, 0, degrees), kOne),
               test::HostMatrix(test::AboutY(angle)), test::kSingleElement);
    ExpectNear(ComposeMatrix(Point3(), Turn(0, 0, 1, degrees), kOne),
               test::HostMatrix(test::AboutZ(angle)), test::kSingleElement);
  }
}

TEST(Compose, ScalesFirstThenTurnsThenMoves) {
  const Matrix3 matrix = ComposeMatrix(Point3(10, 20, 30), Turn(0, 0, 1, 90), Point3(2, 3, 4));
  const Matrix3 expected({0, 2, 0}, {-3, 0, 0}, {0, 0, 4}, {10, 20, 30});
  ExpectNear(matrix, expected, test::kSingleElement);
}

TEST(Compose, DoesNotMindTheLengthOfTheQuaternion) {
  ExpectNear(ComposeMatrix(Point3(), Quat(0, 0, 5, -5), kOne),
             ComposeMatrix(Point3(), Turn(0, 0, 1, 90), kOne), test::kSingleElement);
  EXPECT_EQ(ComposeMatrix(Point3(1, 2, 3), Quat(0, 0, 0, 0), kOne).GetRow(0), Point3(1, 0, 0));
}

TEST(Quaternion, ProductIsTheProductOfTheMatrices) {
  std::mt19937 random(1);
  for (int i = 0; i < 100; ++i) {
    const Quaternion a = RandomRotation(random);
    const Quaternion b = RandomRotation(random);
    const Matrix3 product =
        ComposeMatrix(Point3(), ToQuat(a), kOne) * ComposeMatrix(Point3(), ToQuat(b), kOne);
    ExpectNear(ComposeMatrix(Point3(), ToQuat(Product(a, b)), kOne), product, test::kSingleElement);
  }
}

TEST(Quaternion, ConjugateUndoes) {
  std::mt19937 random(2);
  for (int i = 0; i < 100; ++i) {
    const Quaternion a = RandomRotation(random);
    ExpectNearQuaternion(Product(a, Conjugate(a)), Quaternion());
  }
}

TEST(Quaternion, NormalizedGivesUnitLength) {
  ExpectNearQuaternion(Normalized({0, 3, 0, 4}), {0, 0.6, 0, 0.8});
  ExpectNearQuaternion(Normalized({0, 0, 0, 0}), Quaternion());
}

TEST(Quaternion, NearerSignNeverTurnsFurther) {
  const Quaternion a{0, 0, 0.6, 0.8};
  ExpectNearQuaternion(NearerSign({0, 0, -0.6, -0.8}, a), a);
  ExpectNearQuaternion(NearerSign(a, a), a);
}

TEST(Quaternion, ExpUndoesLog) {
  std::mt19937 random(3);
  for (int i = 0; i < 100; ++i) {
    const Quaternion a = RandomRotation(random);
    ExpectNearQuaternion(Exp(Log(a)), a);
  }
  ExpectNearQuaternion(Exp(Log({1e-13, 0, 0, 1})), {1e-13, 0, 0, 1});
  EXPECT_EQ(Log(Quaternion()).x, 0.0);
}

TEST(Quaternion, LogIsHalfTheRotationVector) {
  const Vector half = Log({0, std::sin(0.4), 0, std::cos(0.4)});
  EXPECT_NEAR(half.y, 0.4, test::kAngle_rad);
  EXPECT_EQ(half.x, 0.0);
}

TEST(Quaternion, SlerpTurnsAtAConstantRate) {
  for (int step = 0; step <= 8; ++step) {
    const double fraction = step / 8.0;
    const Quaternion from{0, 0, std::sin(0.2), std::cos(0.2)};
    const Quaternion to{0, 0, std::sin(1.4), std::cos(1.4)};
    const double half = 0.2 + fraction * 1.2;
    ExpectNearQuaternion(Slerp(from, to, fraction), {0, 0, std::sin(half), std::cos(half)});
  }
}

TEST(Quaternion, SlerpOfEqualRotationsStays) {
  const Quaternion a{0.6, 0, 0, 0.8};
  ExpectNearQuaternion(Slerp(a, a, 0.3), a);
}

TEST(Quaternion, SlerpOfOppositeQuaternionsStaysFinite) {
  const Quaternion a{0.6, 0, 0, 0.8};
  const Quaternion middle = Slerp(a, {-0.6, 0, 0, -0.8}, 0.5);
  EXPECT_NEAR(Dot(middle, middle), 1.0, test::kRotationElement);
}

}  // namespace
}  // namespace host
