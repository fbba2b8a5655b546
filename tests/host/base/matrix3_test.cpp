#include "sdk/geom/matrix3.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "host/base/compose.h"
#include "tests/support/host_geometry.h"
#include "tests/support/tolerances.h"

namespace {

using test::ExpectNear;
using test::ExpectSameRotation;
using test::Turn;

const Matrix3 kQuarterTurn({0, 1, 0}, {-1, 0, 0}, {0, 0, 1}, {0, 0, 0});

Matrix3 Translation(float x, float y, float z) {
  Matrix3 matrix;
  matrix.SetRow(3, {x, y, z});
  return matrix;
}

struct Parts {
  Point3 position;
  Quat rotation;
  Point3 scale;
};

Parts Decomposed(const Matrix3& matrix) {
  Parts parts;
  DecomposeMatrix(matrix, parts.position, parts.rotation, parts.scale);
  return parts;
}

TEST(Matrix3, IsTheIdentityAtFirst) {
  Matrix3 matrix;
  EXPECT_EQ(matrix, Matrix3({1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {0, 0, 0}));
  matrix.SetRow(2, {7, 8, 9});
  EXPECT_EQ(matrix.GetRow(2), Point3(7, 8, 9));
  matrix.IdentityMatrix();
  EXPECT_EQ(matrix, Matrix3());
}

TEST(Matrix3, ComparesAllTwelveNumbersExactly) {
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 3; ++column) {
      Matrix3 other;
      Point3 changed = other.GetRow(row);
      changed[column] = std::nextafter(changed[column], 2.0F);
      other.SetRow(row, changed);
      EXPECT_TRUE(other != Matrix3());
      EXPECT_FALSE(other == Matrix3());
    }
  }
  EXPECT_FALSE(Matrix3() != Matrix3());
}

TEST(Matrix3, AppliesTheFirstFactorFirst) {
  // Moved along X, then turned about Z: it ends on Y.
  EXPECT_EQ((Translation(5, 0, 0) * kQuarterTurn).GetRow(3), Point3(0, 5, 0));
  // Turned first, the move is along X.
  EXPECT_EQ((kQuarterTurn * Translation(5, 0, 0)).GetRow(3), Point3(5, 0, 0));
  EXPECT_EQ((kQuarterTurn * Translation(5, 0, 0)).GetRow(0), Point3(0, 1, 0));
}

TEST(Matrix3, ProductsAreRoundedOnce) {
  // In single precision 16777216 + 1 - 16777216 would lose the 1.
  const Matrix3 first({16777216.0F, 1.0F, -16777216.0F}, {0, 1, 0}, {0, 0, 1}, {0, 0, 0});
  const Matrix3 second({1, 0, 0}, {1, 0, 0}, {1, 0, 0}, {0, 0, 0});
  EXPECT_EQ((first * second).GetRow(0).x, 1.0F);
  const Matrix3 moved({1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {16777216.0F, 1.0F, 0});
  const Matrix3 back({1, 0, 0}, {1, 0, 0}, {0, 0, 1}, {-16777216.0F, 0, 0});
  EXPECT_EQ((moved * back).GetRow(3).x, 1.0F);
}

TEST(Inverse, UndoesATransform) {
  std::mt19937 random(5);
  std::uniform_real_distribution<float> number(-2.0F, 2.0F);
  for (int i = 0; i < 200; ++i) {
    const Matrix3 matrix =
        host::ComposeMatrix({number(random), number(random), number(random)},
                            {number(random), number(random), number(random), number(random)},
                            {2.5F + number(random), 2.5F + number(random), -1.0F});
    ExpectNear(matrix * Inverse(matrix), Matrix3(), 1e-5);
    ExpectNear(Inverse(matrix) * matrix, Matrix3(), 1e-5);
  }
}

TEST(Inverse, IsExactWhereNumbersAre) {
  EXPECT_EQ(Inverse(Translation(1, 2, 3)), Translation(-1, -2, -3));
  EXPECT_EQ(Inverse(Matrix3({2, 0, 0}, {0, 4, 0}, {0, 0, 0.5F}, {2, 4, 8})),
            Matrix3({0.5F, 0, 0}, {0, 0.25F, 0}, {0, 0, 2}, {-1, -1, -16}));
}

TEST(Inverse, IsRoundedOnce) {
  std::mt19937 random(7);
  std::uniform_real_distribution<float> number(-1.0F, 1.0F);
  for (int i = 0; i < 200; ++i) {
    const double a = 2.0F + number(random);
    const double b = 3.0F + number(random);
    const double c = number(random);
    const double x = number(random);
    // Rows (a, c, 0), (0, b, 0), (0, 0, 1): few enough numbers to invert by hand.
    const Matrix3 matrix({static_cast<float>(a), static_cast<float>(c), 0},
                         {0, static_cast<float>(b), 0}, {0, 0, 1}, {static_cast<float>(x), 0, 0});
    const Matrix3 inverse = Inverse(matrix);
    EXPECT_EQ(inverse.GetRow(0).x, static_cast<float>(1.0 / a));
    EXPECT_EQ(inverse.GetRow(0).y, static_cast<float>(-c / (a * b)));
    EXPECT_EQ(inverse.GetRow(1).y, static_cast<float>(1.0 / b));
    EXPECT_EQ(inverse.GetRow(3).x, static_cast<float>(-x / a));
    EXPECT_EQ(inverse.GetRow(3).y, static_cast<float>(x * c / (a * b)));
  }
}

TEST(Inverse, InvertsTheVerySmallAndTheVeryLarge) {
  for (const float size : {1e-12F, 1e12F}) {
    const Matrix3 matrix({size, 0, 0}, {0, size, 0}, {0, 0, size}, {0, 0, 0});
    EXPECT_FLOAT_EQ(Inverse(matrix).GetRow(1).y, 1.0F / size);
  }
}

TEST(Inverse, OfASingularMatrixIsTheIdentity) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  const Matrix3 cases[] = {
      Matrix3({0, 0, 0}, {0, 0, 0}, {0, 0, 0}, {1, 2, 3}),
      Matrix3({1, 0, 0}, {0, 0, 0}, {0, 0, 1}, {1, 2, 3}),
      Matrix3({1, 2, 3}, {2, 4, 6}, {0, 0, 1}, {1, 2, 3}),
      Matrix3({0.1F, 0.2F, 0.7F}, {0.3F, 0.3F, 0.3F}, {0.1F, 0.2F, 0.7F}, {0, 0, 0}),
      Matrix3({1, 2, 3}, {4, 5, 6}, {5, 7, 9}, {1, 2, 3}),
      Matrix3({nan, 0, 0}, {0, 1, 0}, {0, 0, 1}, {0, 0, 0}),
  };
  for (const Matrix3& matrix : cases) EXPECT_EQ(Inverse(matrix), Matrix3());
}

TEST(DecomposeMatrix, TakesAQuarterTurnApart) {
  Matrix3 matrix = kQuarterTurn;
  matrix.SetRow(3, {1, 2, 3});
  const Parts parts = Decomposed(matrix);
  EXPECT_EQ(parts.position, Point3(1, 2, 3));
  EXPECT_EQ(parts.scale, Point3(1, 1, 1));
  EXPECT_NEAR(parts.rotation.z, 0.70710678, test::kSingleElement);
  EXPECT_NEAR(parts.rotation.w, -0.70710678, test::kSingleElement);
  EXPECT_EQ(parts.rotation.x, 0.0F);
  EXPECT_EQ(parts.rotation.y, 0.0F);
}

TEST(DecomposeMatrix, GivesRowLengthsAsScale) {
  const Parts parts = Decomposed(Matrix3({0, 2, 0}, {-3, 0, 0}, {0, 0, 4}, {0, 0, 0}));
  EXPECT_EQ(parts.scale, Point3(2, 3, 4));
  ExpectSameRotation(parts.rotation, Turn(0, 0, 1, 90));
}

TEST(DecomposeMatrix, NegatesAllOfAMirroredScale) {
  const Matrix3 mirrored({-2, 0, 0}, {0, 3, 0}, {0, 0, 4}, {0, 0, 0});
  const Parts parts = Decomposed(mirrored);
  EXPECT_EQ(parts.scale, Point3(-2, -3, -4));
  // The rows are negated with the scale, which leaves a half turn about X.
  ExpectSameRotation(parts.rotation, Turn(1, 0, 0, 180));
  ExpectNear(host::ComposeMatrix(parts.position, parts.rotation, parts.scale), mirrored,
             test::kSingleElement);
}

// In single precision the squares of these lengths would be 0 or infinite.
TEST(DecomposeMatrix, TakesTheVerySmallAndTheVeryLargeApart) {
  for (const float size : {1e-30F, 1e30F}) {
    const Parts parts = Decomposed(Matrix3({0, size, 0}, {-size, 0, 0}, {0, 0, size}, {0, 0, 0}));
    EXPECT_EQ(parts.scale, Point3(size, size, size));
    ExpectSameRotation(parts.rotation, Turn(0, 0, 1, 90));
  }
}

TEST(DecomposeMatrix, ReplacesAZeroRowByTheIdentitys) {
  const Parts one = Decomposed(Matrix3({2, 0, 0}, {0, 0, 0}, {0, 0, 3}, {1, 2, 3}));
  EXPECT_EQ(one.scale, Point3(2, 0, 3));
  ExpectSameRotation(one.rotation, Quat());
  const Parts all = Decomposed(Matrix3({0, 0, 0}, {0, 0, 0}, {0, 0, 0}, {1, 2, 3}));
  EXPECT_EQ(all.scale, Point3(0, 0, 0));
  EXPECT_EQ(all.position, Point3(1, 2, 3));
  ExpectSameRotation(all.rotation, Quat());
}

TEST(DecomposeMatrix, GivesBackEveryHalfTurn) {
  for (const Point3& axis : {Point3(1, 0, 0), Point3(0, 1, 0), Point3(0, 0, 1),
                             Point3(0.6F, 0.8F, 0), Point3(0, 0.8F, -0.6F)}) {
    const Quat turn(axis.x, axis.y, axis.z, 0.0F);
    ExpectSameRotation(Decomposed(host::ComposeMatrix({}, turn, {1, 1, 1})).rotation, turn);
  }
}

TEST(DecomposeMatrix, UndoesComposing) {
  std::mt19937 random(6);
  std::normal_distribution<float> component;
  std::uniform_real_distribution<float> size(0.1F, 10.0F);
  for (int i = 0; i < 1000; ++i) {
    const float x = component(random);
    const float y = component(random);
    const float z = component(random);
    const float w = component(random);
    const float length = std::sqrt(x * x + y * y + z * z + w * w);
    const Quat rotation(x / length, y / length, z / length, w / length);
    const float sign = i % 2 == 0 ? 1.0F : -1.0F;
    const Point3 scale(sign * size(random), sign * size(random), sign * size(random));
    const Point3 position(component(random), component(random), component(random));
    const Parts parts = Decomposed(host::ComposeMatrix(position, rotation, scale));
    EXPECT_EQ(parts.position, position);
    ExpectSameRotation(parts.rotation, rotation);
    ExpectNear(parts.scale, scale, 1e-5);
  }
}

}  // namespace
