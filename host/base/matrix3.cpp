#include "sdk/geom/matrix3.h"

#include <array>
#include <cmath>

#include "host/base/quaternion.h"

// Everything is computed in double precision and rounded once, when it is stored.

namespace {

using Row = std::array<double, 3>;
using Rows = std::array<Row, 3>;

constexpr std::size_t kX = 0;
constexpr std::size_t kY = 1;
constexpr std::size_t kZ = 2;

// Axes whose box has less than this share of the volume of an upright one lie in one plane: what is
// left of the determinant is rounding.
constexpr double kFlatness = 1e-14;

Row ToRow(const Point3& point) { return {point.x, point.y, point.z}; }

Point3 ToPoint(const Row& row) {
  return {static_cast<float>(row[kX]), static_cast<float>(row[kY]), static_cast<float>(row[kZ])};
}

Rows AxesOf(const Matrix3& matrix) {
  return {ToRow(matrix.GetRow(0)), ToRow(matrix.GetRow(1)), ToRow(matrix.GetRow(2))};
}

Row Scaled(const Row& row, double factor) {
  return {row[kX] * factor, row[kY] * factor, row[kZ] * factor};
}

Row Applied(const Row& row, const Rows& axes) {
  Row result{};
  for (std::size_t i = 0; i < 3; ++i) {
    result[i] = row[kX] * axes[kX][i] + row[kY] * axes[kY][i] + row[kZ] * axes[kZ][i];
  }
  return result;
}

Row Cross(const Row& a, const Row& b) {
  return {a[kY] * b[kZ] - a[kZ] * b[kY], a[kZ] * b[kX] - a[kX] * b[kZ],
          a[kX] * b[kY] - a[kY] * b[kX]};
}

double Dot(const Row& a, const Row& b) { return a[kX] * b[kX] + a[kY] * b[kY] + a[kZ] * b[kZ]; }

double Determinant(const Rows& axes) { return Dot(axes[kX], Cross(axes[kY], axes[kZ])); }

// The textbook quaternion, of any length, of the column-vector matrix whose columns are the
// orthonormal rows `m`. It is taken from its largest component, which keeps rounding small.
host::Quaternion TextbookRotation(const Rows& m) {
  const double xx = m[kX][kX];
  const double yy = m[kY][kY];
  const double zz = m[kZ][kZ];
  const Row sums = {m[kY][kZ] + m[kZ][kY], m[kZ][kX] + m[kX][kZ], m[kX][kY] + m[kY][kX]};
  const Row differences = {m[kY][kZ] - m[kZ][kY], m[kZ][kX] - m[kX][kZ], m[kX][kY] - m[kY][kX]};
  if (xx + yy + zz > 0.0) {
    return {differences[kX], differences[kY], differences[kZ], 1.0 + xx + yy + zz};
  }
  if (xx >= yy && xx >= zz) return {1.0 + xx - yy - zz, sums[kZ], sums[kY], differences[kX]};
  if (yy >= zz) return {sums[kZ], 1.0 + yy - xx - zz, sums[kX], differences[kY]};
  return {sums[kY], sums[kX], 1.0 + zz - xx - yy, differences[kZ]};
}

}  // namespace

Matrix3::Matrix3() { IdentityMatrix(); }

Matrix3::Matrix3(const Point3& row0, const Point3& row1, const Point3& row2, const Point3& row3)
    : rows_{row0, row1, row2, row3} {}

void Matrix3::IdentityMatrix() {
  rows_[0] = Point3(1.0F, 0.0F, 0.0F);
  rows_[1] = Point3(0.0F, 1.0F, 0.0F);
  rows_[2] = Point3(0.0F, 0.0F, 1.0F);
  rows_[3] = Point3();
}

Matrix3 operator*(const Matrix3& first, const Matrix3& second) {
  const Rows axes = AxesOf(second);
  const Row offset = ToRow(second.GetRow(3));
  Matrix3 product;
  for (int row = 0; row < 4; ++row) {
    Row image = Applied(ToRow(first.GetRow(row)), axes);
    if (row == 3) image = {image[kX] + offset[kX], image[kY] + offset[kY], image[kZ] + offset[kZ]};
    product.SetRow(row, ToPoint(image));
  }
  return product;
}

bool operator==(const Matrix3& left, const Matrix3& right) {
  for (int row = 0; row < 4; ++row) {
    if (!(left.GetRow(row) == right.GetRow(row))) return false;
  }
  return true;
}

Matrix3 Inverse(const Matrix3& matrix) {
  const Rows m = AxesOf(matrix);
  const double determinant = Determinant(m);
  const double volume = std::sqrt(Dot(m[kX], m[kX]) * Dot(m[kY], m[kY]) * Dot(m[kZ], m[kZ]));
  if (!(std::abs(determinant) > kFlatness * volume)) return {};

  // The columns of the inverse are the cross products of the rows over the determinant.
  const Rows columns = {Scaled(Cross(m[kY], m[kZ]), 1.0 / determinant),
                        Scaled(Cross(m[kZ], m[kX]), 1.0 / determinant),
                        Scaled(Cross(m[kX], m[kY]), 1.0 / determinant)};
  Rows inverse{};
  for (std::size_t row = 0; row < 3; ++row) {
    inverse[row] = {columns[kX][row], columns[kY][row], columns[kZ][row]};
  }
  const Row offset = Scaled(Applied(ToRow(matrix.GetRow(3)), inverse), -1.0);
  return {ToPoint(inverse[kX]), ToPoint(inverse[kY]), ToPoint(inverse[kZ]), ToPoint(offset)};
}

void DecomposeMatrix(const Matrix3& matrix, Point3& position, Quat& rotation, Point3& scale) {
  Rows axes = AxesOf(matrix);
  const double sign = Determinant(axes) < 0.0 ? -1.0 : 1.0;
  Row lengths{};
  for (std::size_t i = 0; i < 3; ++i) {
    const double length = std::sqrt(Dot(axes[i], axes[i]));
    lengths[i] = sign * length;
    axes[i] = length > 0.0 ? Scaled(axes[i], 1.0 / lengths[i])
                           : Row{i == kX ? 1.0 : 0.0, i == kY ? 1.0 : 0.0, i == kZ ? 1.0 : 0.0};
  }
  host::Quaternion quaternion = host::Normalized(TextbookRotation(axes));
  quaternion.w = -quaternion.w;  // the host's quaternion turns the opposite way
  rotation = host::ToQuat(quaternion);
  scale = ToPoint(lengths);
  position = matrix.GetRow(3);
}

void QuatToEuler(const Quat& rotation, float angles[3]) {
  const host::Vector euler = host::ToEuler(host::FromQuat(rotation));
  angles[0] = static_cast<float>(euler.x);
  angles[1] = static_cast<float>(euler.y);
  angles[2] = static_cast<float>(euler.z);
}
