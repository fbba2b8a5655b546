#include "formats/math/quaternion.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/formats/math/reference.h"
#include "tests/support/tolerances.h"

namespace orvane {
namespace {

constexpr double kPi = 3.141592653589793;

void ExpectComponents(const Quaternion& q, double x, double y, double z, double w) {
  EXPECT_NEAR(q.x(), x, test::kRotationElement);
  EXPECT_NEAR(q.y(), y, test::kRotationElement);
  EXPECT_NEAR(q.z(), z, test::kRotationElement);
  EXPECT_NEAR(q.w(), w, test::kRotationElement);
}

RotationMatrix3 Diagonal(double x, double y, double z) {
  RotationMatrix3 matrix;
  matrix[0][0] = x;
  matrix[1][1] = y;
  matrix[2][2] = z;
  return matrix;
}

TEST(Quaternion, OfAQuarterTurnAboutEachAxis) {
  const double half = std::sqrt(0.5);
  ExpectComponents(Quaternion(EulerRotation(kPi / 2, 0, 0)), half, 0, 0, half);
  ExpectComponents(Quaternion(EulerRotation(0, kPi / 2, 0)), 0, half, 0, half);
  ExpectComponents(Quaternion(EulerRotation(0, 0, kPi / 2)), 0, 0, half, half);
  ExpectComponents(Quaternion(RotationMatrix3(EulerRotation(0, 0, kPi / 2))), 0, 0, half, half);
}

TEST(Quaternion, OfTheIdentity) {
  ExpectComponents(Quaternion(RotationMatrix3()), 0, 0, 0, 1);
  ExpectComponents(Quaternion(EulerRotation()), 0, 0, 0, 1);
}

TEST(QuaternionFromMatrix, TakesTheDiagonalBranchAtATraceOfExactlyZero) {
  // A third of a turn about (1, 1, 1): the trace is 0, and all elements are exact.
  RotationMatrix3 cycle;
  for (unsigned int axis = 0; axis < 3; ++axis) {
    cycle[axis] = Vector3();
    cycle[axis][(axis + 1) % 3] = 1;
  }
  const Quaternion q(cycle);
  EXPECT_EQ(q.x(), 0.5);
  EXPECT_EQ(q.y(), 0.5);
  EXPECT_EQ(q.z(), 0.5);
  EXPECT_EQ(q.w(), 0.5);
  // No rotation, but one where the branches differ: the other would give w = 0.5.
  const Quaternion branch(Diagonal(0.5, -0.25, -0.25));
  EXPECT_EQ(branch.x(), std::sqrt(2.0) / 2);
  EXPECT_EQ(branch.w(), 0.0);
}

TEST(QuaternionFromMatrix, StartsFromTheLargestDiagonalElement) {
  ExpectComponents(Quaternion(Diagonal(1, -1, -1)), 1, 0, 0, 0);
  ExpectComponents(Quaternion(Diagonal(-1, 1, -1)), 0, 1, 0, 0);
  ExpectComponents(Quaternion(Diagonal(-1, -1, 1)), 0, 0, 1, 0);
}

TEST(QuaternionFromMatrix, PrefersTheLowerIndexOfEqualDiagonalElements) {
  EXPECT_GT(Quaternion(Diagonal(0, 0, -1)).x(), 0.5);
  EXPECT_EQ(Quaternion(Diagonal(0, 0, -1)).y(), 0.0);
  EXPECT_GT(Quaternion(Diagonal(-1, 0, 0)).y(), 0.5);
  EXPECT_GT(Quaternion(Diagonal(0, -1, 0)).x(), 0.5);
}

TEST(QuaternionFromMatrix, IsNotNormalisedAgain) {
  EXPECT_EQ(Quaternion(Diagonal(3, 3, 3)).w(), std::sqrt(10.0) / 2);
}

TEST(QuaternionFromAngleAxis, DividesTheAxisByItsLength) {
  ExpectComponents(Quaternion(kPi / 2, Vector3(0, 0, 250)), 0, 0, std::sqrt(0.5), std::sqrt(0.5));
  ExpectComponents(Quaternion(kPi, Vector3(3, 4, 0)), 0.6, 0.8, 0, 0);
}

TEST(QuaternionFromAngleAxis, TakesXForAnAxisWithoutDirection) {
  const double angle = 0.7;
  for (const Vector3& axis : {Vector3(0, 0, 0), Vector3(0, 5e-8, 0), Vector3(0, 1e-200, 0)}) {
    const Quaternion q(angle, axis);
    EXPECT_EQ(q.x(), std::sin(angle * 0.5));
    EXPECT_EQ(q.y(), 0.0);
    EXPECT_EQ(q.z(), 0.0);
    EXPECT_EQ(q.w(), std::cos(angle * 0.5));
  }
  ExpectComponents(Quaternion(kPi, Vector3(0, 5.1e-8, 0)), 0, 1, 0, 0);
}

TEST(Quaternion, SettersWriteAllComponentsAndReturnTheQuaternion) {
  Quaternion q(0.3, Vector3(1, 2, 3));
  EXPECT_EQ(&q.Set(RotationMatrix3()), &q);
  ExpectComponents(q, 0, 0, 0, 1);
  EXPECT_EQ(&q.Set(kPi, Vector3(0, 1, 0)), &q);
  ExpectComponents(q, 0, 1, 0, 0);
  EXPECT_EQ(&q.Set(EulerRotation()), &q);
  ExpectComponents(q, 0, 0, 0, 1);
  const Quaternion other(0.3, Vector3(1, 2, 3));
  EXPECT_EQ(&q.Set(other), &q);
  EXPECT_EQ(q.x(), other.x());
  EXPECT_EQ(q.y(), other.y());
  EXPECT_EQ(q.z(), other.z());
  EXPECT_EQ(q.w(), other.w());
}

TEST(QuaternionFromEuler, ReadsTheRotationsOwnOrder) {
  const OrvaneEulerOrder rotating_xyz(21);
  const Quaternion q(EulerRotation(kPi / 2, 0, kPi / 2, rotating_xyz));
  // About X, then about the Z that X has turned to -Y.
  ExpectComponents(q, 0.5, -0.5, 0.5, 0.5);
}

}  // namespace
}  // namespace orvane
