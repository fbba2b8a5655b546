#include "plugin/skeleton/axis_conversion.h"

#include <gtest/gtest.h>

#include <array>
#include <numbers>

#include "tests/support/tolerances.h"

namespace orvane {
namespace {

constexpr double kDegree = std::numbers::pi / 180;

// A matrix row by row.
using Rows = std::array<std::array<double, 3>, 3>;

void ExpectMatrix(const RotationMatrix3& found, const Rows& expected) {
  for (unsigned row = 0; row < 3; ++row) {
    for (unsigned column = 0; column < 3; ++column) {
      EXPECT_NEAR(found.Element(row, column), expected[row][column], test::kRotationElement)
          << row << ", " << column;
    }
  }
}

Rows RowsOf(const RotationMatrix3& matrix) {
  Rows rows{};
  for (unsigned row = 0; row < 3; ++row) {
    for (unsigned column = 0; column < 3; ++column) rows[row][column] = matrix.Element(row, column);
  }
  return rows;
}

RotationMatrix3 FileRotation(double x_deg, double y_deg, double z_deg) {
  return RotationMatrix3(EulerRotation(x_deg * kDegree, y_deg * kDegree, z_deg * kDegree));
}

void ExpectVector(const Vector3& found, double x, double y, double z) {
  EXPECT_EQ(found.x(), x);
  EXPECT_EQ(found.y(), y);
  EXPECT_EQ(found.z(), z);
}

TEST(AxisConversionTest, PositionsOfARootGoFromYUpToZUp) {
  ExpectVector(AxisConversion(true).HostPosition(Vector3(1, 2, 3)), 1, -3, 2);
}

TEST(AxisConversionTest, PositionsBelowABoneGoAlongItsX) {
  ExpectVector(AxisConversion(false).HostPosition(Vector3(1, 2, 3)), 2, 3, 1);
}

TEST(AxisConversionTest, ARootThatIsNotRotatedStandsUpright) {
  // Ry(-90) Rx(180): the bone's X axis points up.
  ExpectMatrix(AxisConversion(true).HostRotation(RotationMatrix3()),
               {{{0, 0, 1}, {0, -1, 0}, {1, 0, 0}}});
}

TEST(AxisConversionTest, ABoneThatIsNotRotatedStaysSo) {
  ExpectMatrix(AxisConversion(false).HostRotation(RotationMatrix3()),
               {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}});
}

TEST(AxisConversionTest, RotationsBelowABoneChangeTheirAxes) {
  const AxisConversion axes(false);
  // The file's Y is the bone's X, its Z the bone's Y, its X the bone's Z.
  ExpectMatrix(axes.HostRotation(FileRotation(0, 90, 0)), {{{1, 0, 0}, {0, 0, -1}, {0, 1, 0}}});
  ExpectMatrix(axes.HostRotation(FileRotation(0, 0, 90)), {{{0, 0, 1}, {0, 1, 0}, {-1, 0, 0}}});
  ExpectMatrix(axes.HostRotation(FileRotation(90, 0, 0)), {{{0, -1, 0}, {1, 0, 0}, {0, 0, 1}}});
}

TEST(AxisConversionTest, ARootThatLeansInTheFileLeansInTheHost) {
  // A quarter turn about the file's Z lays the long axis, which was up, along -X.
  ExpectMatrix(AxisConversion(true).HostRotation(FileRotation(0, 0, 90)),
               {{{-1, 0, 0}, {0, -1, 0}, {0, 0, 1}}});
}

TEST(AxisConversionTest, PositionsOfARootGoBackToYUp) {
  ExpectVector(AxisConversion(true).FilePosition(Vector3(1, 2, 3)), 1, 3, -2);
}

TEST(AxisConversionTest, PositionsBelowABoneGoBackToItsY) {
  ExpectVector(AxisConversion(false).FilePosition(Vector3(1, 2, 3)), 3, 1, 2);
}

TEST(AxisConversionTest, ARootThatStandsUprightIsNotRotatedInTheFile) {
  const RotationMatrix3 upright = AxisConversion(true).HostRotation(RotationMatrix3());
  ExpectMatrix(AxisConversion(true).FileRotation(upright), {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}});
}

// Rx(180) Rz(-90) times the C of the header.
TEST(AxisConversionTest, ARootThatLiesAsTheHostMakesItIsTurnedInTheFile) {
  ExpectMatrix(AxisConversion(true).FileRotation(RotationMatrix3()),
               {{{0, 1, 0}, {1, 0, 0}, {0, 0, -1}}});
}

TEST(AxisConversionTest, RotationsBelowABoneGetTheAxesOfTheFile) {
  // The bone's X is the file's Y, its Y the file's Z, its Z the file's X.
  const AxisConversion axes(false);
  ExpectMatrix(axes.FileRotation(FileRotation(90, 0, 0)), {{{0, 0, 1}, {0, 1, 0}, {-1, 0, 0}}});
  ExpectMatrix(axes.FileRotation(FileRotation(0, 90, 0)), {{{0, -1, 0}, {1, 0, 0}, {0, 0, 1}}});
  ExpectMatrix(axes.FileRotation(FileRotation(0, 0, 90)), {{{1, 0, 0}, {0, 0, -1}, {0, 1, 0}}});
}

TEST(AxisConversionTest, ThereAndBackIsTheSame) {
  for (const bool is_root : {true, false}) {
    const AxisConversion axes(is_root);
    ExpectVector(axes.FilePosition(axes.HostPosition(Vector3(1, 2, 3))), 1, 2, 3);
    for (int x = -180; x <= 180; x += 45) {
      for (int y = -90; y <= 90; y += 45) {
        for (int z = -180; z <= 180; z += 45) {
          const RotationMatrix3 rotation = FileRotation(x, y, z);
          const RotationMatrix3 back = axes.FileRotation(axes.HostRotation(rotation));
          ExpectMatrix(back, RowsOf(rotation));
        }
      }
    }
  }
}

TEST(AxisConversionTest, HostValuesAreSinglePrecisionWithTheScalarNegated) {
  EXPECT_EQ(HostPoint(Vector3(0.1, -2, 3)), Point3(0.1F, -2.0F, 3.0F));
  const Quat quarter_turn_z = HostQuaternion(Quaternion(EulerRotation(0, 0, 90 * kDegree)));
  EXPECT_EQ(quarter_turn_z.x, 0.0F);
  EXPECT_EQ(quarter_turn_z.y, 0.0F);
  EXPECT_FLOAT_EQ(quarter_turn_z.z, 0.70710678F);
  EXPECT_FLOAT_EQ(quarter_turn_z.w, -0.70710678F);
}

}  // namespace
}  // namespace orvane
