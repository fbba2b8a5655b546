#include "formats/math/rotation_matrix3.h"

#include <gtest/gtest.h>

#include <cmath>

#include "formats/math/euler_rotation.h"
#include "tests/formats/math/reference.h"

namespace orvane {
namespace {

constexpr double kQuarterTurn = 1.5707963267948966;

// Rows of the matrix that acts on column vectors.
void ExpectRows(const RotationMatrix3& matrix, const reference::Matrix& rows) {
  reference::ExpectNear(reference::Of(matrix), rows);
}

RotationMatrix3 Counting() {
  RotationMatrix3 matrix;
  for (unsigned int vector = 0; vector < 3; ++vector) {
    for (unsigned int index = 0; index < 3; ++index) matrix[vector][index] = 3 * vector + index + 1;
  }
  return matrix;
}

TEST(RotationMatrix3, StartsAsTheIdentity) {
  ExpectRows(RotationMatrix3(), {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}});
}

TEST(RotationMatrix3, StoresColumns) {
  const RotationMatrix3 matrix(EulerRotation(0, 0, kQuarterTurn));
  // A quarter turn about Z takes X to Y: the first stored vector, the first host row.
  EXPECT_NEAR(matrix[0].y(), 1.0, 1e-15);
  EXPECT_NEAR(matrix.Element(1, 0), 1.0, 1e-15);
  EXPECT_NEAR(matrix.Element(0, 1), -1.0, 1e-15);
}

TEST(RotationMatrix3, OfQuarterTurns) {
  ExpectRows(RotationMatrix3(EulerRotation(kQuarterTurn, 0, 0)),
             {{{1, 0, 0}, {0, 0, -1}, {0, 1, 0}}});
  ExpectRows(RotationMatrix3(EulerRotation(0, kQuarterTurn, 0)),
             {{{0, 0, 1}, {0, 1, 0}, {-1, 0, 0}}});
  ExpectRows(RotationMatrix3(EulerRotation(0, 0, kQuarterTurn)),
             {{{0, -1, 0}, {1, 0, 0}, {0, 0, 1}}});
}

TEST(RotationMatrix3, OfTheDefaultOrderTurnsAboutFixedXFirst) {
  // +Y goes to +Z about X, and stays there about Z.
  const RotationMatrix3 matrix(EulerRotation(kQuarterTurn, 0, kQuarterTurn));
  EXPECT_NEAR(matrix.Element(2, 1), 1.0, 1e-15);
}

TEST(RotationMatrix3, ProductAppliesTheRightOperandFirst) {
  const RotationMatrix3 z(EulerRotation(0, 0, kQuarterTurn));
  const RotationMatrix3 x(EulerRotation(kQuarterTurn, 0, 0));
  EXPECT_NEAR((z * x).Element(2, 1), 1.0, 1e-15);   // +Y to +Z, which stays
  EXPECT_NEAR((x * z).Element(0, 1), -1.0, 1e-15);  // +Y to -X, which stays
}

// Files and scenes made so far rely on the last digits of products: every element begins with 0 and
// adds three products, in the order of the columns of the left matrix.
TEST(RotationMatrix3, ProductAddsInOneOrderBeginningWithZero) {
  RotationMatrix3 left, right;
  for (unsigned int column = 0; column < 3; ++column) {
    for (unsigned int row = 0; row < 3; ++row) {
      left[column][row] = 1.0 / (3.1 * column + row + 1);
      right[column][row] = std::ldexp(1.0 / 3.0 + row, static_cast<int>(20 * column));
    }
  }
  right[1] = Vector3(-0.0, -0.0, -0.0);
  const RotationMatrix3 product = left * right;
  for (unsigned int column = 0; column < 3; ++column) {
    for (unsigned int row = 0; row < 3; ++row) {
      double sum = 0.0;
      for (unsigned int k = 0; k < 3; ++k) sum += right[column][k] * left[k][row];
      EXPECT_EQ(product.Element(row, column), sum);
      EXPECT_EQ(std::signbit(product.Element(row, column)), std::signbit(sum));
    }
  }
}

TEST(RotationMatrix3, ProductMultipliesRowsByColumns) {
  RotationMatrix3 doubled;
  for (unsigned int index = 0; index < 3; ++index) doubled[index][index] = 2 + index;
  ExpectRows(doubled * Counting(), {{{2, 8, 14}, {6, 15, 24}, {12, 24, 36}}});
  ExpectRows(Counting() * doubled, {{{2, 12, 28}, {4, 15, 32}, {6, 18, 36}}});
}

// Every sum runs from the first term to the last: in any other order these lose the 1.
TEST(RotationMatrix3, ProductAddsItsTermsInTheirOrder) {
  RotationMatrix3 left, right;
  for (unsigned int index = 0; index < 3; ++index) {
    left[0][index] = left[1][index] = left[2][index] = 1;
    right[index] = Vector3(1e16, -1e16, 1);
  }
  const RotationMatrix3 product = left * right;
  for (unsigned int vector = 0; vector < 3; ++vector) {
    for (unsigned int index = 0; index < 3; ++index) EXPECT_EQ(product[vector][index], 1.0);
  }
}

TEST(RotationMatrix3, ProductWithTheIdentityIsTheOtherOperand) {
  const RotationMatrix3 matrix(EulerRotation(0.3, -0.7, 2.1));
  for (const RotationMatrix3& product : {matrix * RotationMatrix3(), RotationMatrix3() * matrix}) {
    for (unsigned int vector = 0; vector < 3; ++vector) {
      for (unsigned int index = 0; index < 3; ++index) {
        EXPECT_EQ(product[vector][index], matrix[vector][index]);
      }
    }
  }
}

TEST(RotationMatrix3, ProductWithTheTransposeIsTheIdentity) {
  const RotationMatrix3 matrix(EulerRotation(0.3, -0.7, 2.1));
  const reference::Matrix identity = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
  ExpectRows(matrix * matrix.Transposed(), identity);
  ExpectRows(matrix.Transposed() * matrix, identity);
}

TEST(RotationMatrix3, TransposesInPlace) {
  RotationMatrix3 matrix = Counting();
  ExpectRows(matrix, {{{1, 4, 7}, {2, 5, 8}, {3, 6, 9}}});
  matrix.Transpose();
  ExpectRows(matrix, {{{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}});
}

TEST(RotationMatrix3, TransposesACopy) {
  const RotationMatrix3 matrix = Counting();
  ExpectRows(matrix.Transposed(), {{{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}});
  ExpectRows(matrix, {{{1, 4, 7}, {2, 5, 8}, {3, 6, 9}}});
}

TEST(RotationMatrix3, SetReplacesEveryElement) {
  RotationMatrix3 matrix = Counting();
  matrix.Set(EulerRotation());
  ExpectRows(matrix, {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}});
}

// The changes of basis that the host's bones need, as they are used elsewhere.
TEST(RotationMatrix3, ChangesOfBasisAreExactToRounding) {
  const RotationMatrix3 c = RotationMatrix3(EulerRotation(0, 0, kQuarterTurn)) *
                            RotationMatrix3(EulerRotation(kQuarterTurn, 0, 0));
  // (a, b, c) becomes (c, a, b).
  ExpectRows(c, {{{0, 0, 1}, {1, 0, 0}, {0, 1, 0}}});
  const RotationMatrix3 f = RotationMatrix3(EulerRotation(0, -kQuarterTurn, 0)) *
                            RotationMatrix3(EulerRotation(2 * kQuarterTurn, 0, 0));
  // (a, b, c) becomes (a, -c, b): Y up becomes Z up.
  ExpectRows(f * c.Transposed(), {{{1, 0, 0}, {0, 0, -1}, {0, 1, 0}}});
}

}  // namespace
}  // namespace orvane
