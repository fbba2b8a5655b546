#include "formats/math/euler_rotation.h"

#include <gtest/gtest.h>

#include <cmath>

#include "formats/math/rotation_matrix3.h"
#include "tests/support/tolerances.h"

namespace orvane {
namespace {

constexpr double kPi = 3.141592653589793;

// A matrix with the given elements, row by row.
RotationMatrix3 FromRows(const double (&rows)[3][3]) {
  RotationMatrix3 matrix;
  for (unsigned int row = 0; row < 3; ++row) {
    for (unsigned int column = 0; column < 3; ++column) matrix[column][row] = rows[row][column];
  }
  return matrix;
}

TEST(EulerRotation, StartsWithZeroAnglesInTheDefaultOrder) {
  const EulerRotation rotation;
  for (unsigned int index = 0; index < 3; ++index) EXPECT_EQ(rotation[index], 0.0);
  EXPECT_EQ(rotation.order().code(), 0u);
}

TEST(EulerRotation, HasItsAnglesByIndex) {
  EulerRotation rotation(1, 2, 3, OrvaneEulerOrder(20));
  EXPECT_EQ(rotation[0], 1.0);
  EXPECT_EQ(rotation[1], 2.0);
  EXPECT_EQ(rotation[2], 3.0);
  EXPECT_EQ(rotation.order().code(), 20u);
  rotation[1] = 5;
  EXPECT_EQ(rotation[1], 5.0);
}

// Changes the order that all rotations share, and puts it back.
class DefaultOrder : public ::testing::Test {
 protected:
  ~DefaultOrder() override { EulerRotation().SetDefaultOrder(0u); }
};

TEST_F(DefaultOrder, AffectsOnlyRotationsConstructedAfterwards) {
  EulerRotation before(1, 2, 3);
  before.SetDefaultOrder(OrvaneEulerOrder(20));
  EXPECT_EQ(before.order().code(), 0u);
  EXPECT_EQ(before.DefaultOrder().code(), 20u);
  const EulerRotation after;
  EXPECT_EQ(after.order().code(), 20u);
  EXPECT_EQ(EulerRotation(1, 2, 3).order().code(), 20u);
  EXPECT_EQ(EulerRotation(RotationMatrix3()).order().code(), 20u);
}

TEST_F(DefaultOrder, IsSetByCodeToo) {
  EulerRotation().SetDefaultOrder(5u);
  EXPECT_EQ(EulerRotation().order().code(), 5u);
}

TEST_F(DefaultOrder, IsOneObjectSharedByAll) {
  EulerRotation first;
  EulerRotation second(1, 2, 3, OrvaneEulerOrder(7));
  EXPECT_EQ(&first.DefaultOrder(), &second.DefaultOrder());
}

TEST(EulerFromMatrix, ReturnsTheAnglesThatMadeIt) {
  for (double x : {-3.0, -0.5, 0.0, 1.0, kPi}) {
    for (double y : {-1.5, -0.3, 0.0, 1.2}) {
      for (double z : {-2.9, 0.0, 0.4, 3.1}) {
        const EulerRotation back(RotationMatrix3(EulerRotation(x, y, z)));
        EXPECT_NEAR(back[0], x, test::kAngle_rad);
        EXPECT_NEAR(back[1], y, test::kAngle_rad);
        EXPECT_NEAR(back[2], z, test::kAngle_rad);
      }
    }
  }
}

TEST(EulerFromMatrix, KeepsTheTargetsOwnOrder) {
  EulerRotation target(0, 0, 0, OrvaneEulerOrder(21));
  target.Set(RotationMatrix3(EulerRotation(0.1, 0.2, 0.3, OrvaneEulerOrder(21))));
  EXPECT_EQ(target.order().code(), 21u);
  EXPECT_NEAR(target[0], 0.1, test::kAngle_rad);
  EXPECT_NEAR(target[1], 0.2, test::kAngle_rad);
  EXPECT_NEAR(target[2], 0.3, test::kAngle_rad);
}

TEST(EulerFromMatrix, PutsTheWholeRotationIntoTheFirstAngleAtAQuarterPitch) {
  const EulerRotation up(RotationMatrix3(EulerRotation(0.3, kPi / 2, 0.5)));
  EXPECT_NEAR(up[0], 0.3 - 0.5, test::kAngle_rad);
  EXPECT_NEAR(up[1], kPi / 2, test::kAngle_rad);
  EXPECT_EQ(up[2], 0.0);
  const EulerRotation down(RotationMatrix3(EulerRotation(0.3, -kPi / 2, 0.5)));
  EXPECT_NEAR(down[0], 0.3 + 0.5, test::kAngle_rad);
  EXPECT_NEAR(down[1], -kPi / 2, test::kAngle_rad);
  EXPECT_EQ(down[2], 0.0);
}

TEST(EulerFromMatrix, CountsAsDegenerateUpToAndWithTwoToTheMinus19) {
  const double threshold = std::ldexp(1.0, -19);
  const double just_above = std::nextafter(threshold, 1.0);
  // Only the elements that the decision and the third angle look at matter here.
  EXPECT_EQ(EulerRotation(FromRows({{0, 0, 0}, {threshold, 1, 0}, {-1, 0, 0}}))[2], 0.0);
  EXPECT_NEAR(EulerRotation(FromRows({{0, 0, 0}, {just_above, 1, 0}, {-1, 0, 0}}))[2], kPi / 2,
              test::kAngle_rad);
}

TEST(EulerFromMatrix, CountsARepeatedAxisAsDegenerateLikewise) {
  const OrvaneEulerOrder xyx(2);
  const double threshold = std::ldexp(1.0, -19);
  EulerRotation target(0, 0, 0, xyx);
  target.Set(FromRows({{1, threshold, 0}, {0.5, 1, 0}, {0, 0, 1}}));
  EXPECT_EQ(target[2], 0.0);
  target.Set(FromRows({{1, std::nextafter(threshold, 1.0), 0}, {0.5, 1, 0}, {0, 0, 1}}));
  EXPECT_NEAR(target[2], kPi / 2, test::kAngle_rad);
}

TEST(EulerFromMatrix, LeavesHalfTurnsOfEitherSign) {
  EXPECT_EQ(EulerRotation(FromRows({{1, 0, 0}, {0, -1, 0}, {0, 0.0, -1}}))[0], kPi);
  EXPECT_EQ(EulerRotation(FromRows({{1, 0, 0}, {0, -1, 0}, {0, -0.0, -1}}))[0], -kPi);
  EXPECT_EQ(EulerRotation(FromRows({{-1, 0, 0}, {0.0, -1, 0}, {0, 0, 1}}))[2], kPi);
  EXPECT_EQ(EulerRotation(FromRows({{-1, 0, 0}, {-0.0, -1, 0}, {0, 0, 1}}))[2], -kPi);
}

TEST(EulerFromEuler, CopiesEqualOrdersBitForBit) {
  const EulerRotation source(7.5, -100.25, 1e300, OrvaneEulerOrder(13));
  EulerRotation target(0, 0, 0, OrvaneEulerOrder(13));
  target.Set(source);
  for (unsigned int index = 0; index < 3; ++index) EXPECT_EQ(target[index], source[index]);
}

TEST(EulerFromEuler, ReordersThroughAMatrix) {
  const EulerRotation source(0.1, 0.2, 0.3, OrvaneEulerOrder(21));
  EulerRotation target;
  target.Set(source);
  EXPECT_EQ(target.order().code(), 0u);
  const RotationMatrix3 expected(source);
  const RotationMatrix3 actual(target);
  for (unsigned int vector = 0; vector < 3; ++vector) {
    for (unsigned int index = 0; index < 3; ++index) {
      EXPECT_NEAR(actual[vector][index], expected[vector][index], test::kRotationElement);
    }
  }
  EXPECT_GT(std::abs(target[0] - source[0]), 0.01) << "not a plain copy";
}

}  // namespace
}  // namespace orvane
