#pragma once

#include <array>

#include "formats/math/rotation.h"
#include "formats/math/vector.h"

// A rotation as a matrix M that acts on column vectors: v' = M v. It is stored as its three
// columns, the images of the X, Y and Z axes, which are the rows of the host's row-vector matrix.
// Indices count from 0. Nothing fails. Threads may read one together, and each may change its own.
namespace orvane {

template <typename T>
class OrvaneEulerRotation;

template <typename T>
class OrvaneRotationMatrix3 final : public OrvaneRotation<T> {
 public:
  // The identity.
  OrvaneRotationMatrix3()
      : vectors_{OrvaneVector3<T>(1, 0, 0), OrvaneVector3<T>(0, 1, 0), OrvaneVector3<T>(0, 0, 1)} {}
  // The same rotation as `rotation`, read in its own order.
  explicit OrvaneRotationMatrix3(const OrvaneEulerRotation<T>& rotation) { Set(rotation); }

  // Stored vector by index, 0 to 2, not checked: the column of M with that index.
  OrvaneVector3<T>& operator[](unsigned int index) { return vectors_[index]; }
  const OrvaneVector3<T>& operator[](unsigned int index) const { return vectors_[index]; }

  // M(row, column): component `row` of stored vector `column`.
  const T& Element(unsigned int row, unsigned int column) const { return vectors_[column][row]; }

  // Takes on the rotation of `rotation`, read in its own order.
  OrvaneRotationMatrix3& Set(const OrvaneEulerRotation<T>& rotation);

  // Turns this matrix into its transpose, for a rotation the inverse.
  void Transpose();
  OrvaneRotationMatrix3 Transposed() const;

 private:
  std::array<OrvaneVector3<T>, 3> vectors_;
};

// M_left M_right: `right` is applied first. Example: Rz(90) * Rx(90) takes +Y to +Z (by Rx) and
// leaves it there (by Rz).
template <typename T>
OrvaneRotationMatrix3<T> operator*(const OrvaneRotationMatrix3<T>& left,
                                   const OrvaneRotationMatrix3<T>& right);

extern template class OrvaneRotationMatrix3<double>;
extern template OrvaneRotationMatrix3<double> operator*(const OrvaneRotationMatrix3<double>&,
                                                        const OrvaneRotationMatrix3<double>&);

using RotationMatrix3 = OrvaneRotationMatrix3<double>;

}  // namespace orvane
