#include "formats/math/rotation_matrix3.h"

#include <utility>

#include "formats/math/matrix_columns.h"

namespace orvane {

template <typename T>
void OrvaneRotationMatrix3<T>::Transpose() {
  std::swap(vectors_[0][1], vectors_[1][0]);
  std::swap(vectors_[0][2], vectors_[2][0]);
  std::swap(vectors_[1][2], vectors_[2][1]);
}

template <typename T>
OrvaneRotationMatrix3<T> OrvaneRotationMatrix3<T>::Transposed() const {
  OrvaneRotationMatrix3 copy = *this;
  copy.Transpose();
  return copy;
}

template <typename T>
OrvaneRotationMatrix3<T> operator*(const OrvaneRotationMatrix3<T>& left,
                                   const OrvaneRotationMatrix3<T>& right) {
  OrvaneRotationMatrix3<T> product;
  MultiplyColumns<T>(left, right, product);
  return product;
}

template class OrvaneRotationMatrix3<double>;
template OrvaneRotationMatrix3<double> operator*(const OrvaneRotationMatrix3<double>&,
                                                 const OrvaneRotationMatrix3<double>&);

}  // namespace orvane
