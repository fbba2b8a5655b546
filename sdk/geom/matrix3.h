#pragma once

#include "platform/export.h"
#include "sdk/geom/point3.h"
#include "sdk/geom/quat.h"

// A transform for row vectors in single precision: v' = v * M. Rows 0 to 2 are the images of the X,
// Y and Z axes, row 3 is the translation. In a product A * B the transform A is applied first, so
// the world transform of a node is its local transform times its parent's world transform.
class SKELDER_API Matrix3 {
 public:
  // The identity.
  Matrix3();
  Matrix3(const Point3& row0, const Point3& row1, const Point3& row2, const Point3& row3);

  // Makes this the identity.
  void IdentityMatrix();

  // Row 0 to 3.
  const Point3& GetRow(int row) const { return rows_[row]; }
  void SetRow(int row, const Point3& value) { rows_[row] = value; }

  // The transform that applies `first` and then `second`, computed in double precision and rounded
  // once.
  friend SKELDER_API Matrix3 operator*(const Matrix3& first, const Matrix3& second);

  // Exact comparison of all twelve numbers.
  friend SKELDER_API bool operator==(const Matrix3& left, const Matrix3& right);
  friend bool operator!=(const Matrix3& left, const Matrix3& right) { return !(left == right); }

 private:
  Point3 rows_[4];
};

// The inverse, computed in double precision and rounded once; the identity when `matrix` is
// singular.
SKELDER_API Matrix3 Inverse(const Matrix3& matrix);

// Splits `matrix` into local = scale * rotation * translation (row-vector order): `position` is row
// 3; `scale` holds the lengths of rows 0 to 2, all negated together with the rows when the
// determinant is negative (a zero row gives scale 0 and that row of the identity); `rotation` is
// the host quaternion of the normalised rows. Computed in double precision, returned in single.
SKELDER_API void DecomposeMatrix(const Matrix3& matrix, Point3& position, Quat& rotation,
                                 Point3& scale);

// Stores in `angles` the x, y and z angles (radians) with Rz(z) * Ry(y) * Rx(x) = T(x, y, z, -w)
// for column vectors, T being the textbook matrix of a quaternion. Where the pitch is +-90 degrees
// (below 1e-9) the third angle is 0.
SKELDER_API void QuatToEuler(const Quat& rotation, float angles[3]);
