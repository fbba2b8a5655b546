#include "formats/math/rotation_matrix3.h"

#include <utility>

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
  for (unsigned int c = 0; c < 3; ++c) {
    for (unsigned int r = 0; r < 3; ++r) {
      T sum = T();
      for (unsigned int k = 0; k < 3; ++k) sum += right[r][k] * left[k][c];
      product[r][c] = sum;
    }
  }
  return product;
}

template class OrvaneRotationMatrix3<double>;
template OrvaneRotationMatrix3<double> operator*(const OrvaneRotationMatrix3<double>&,
                                                 const OrvaneRotationMatrix3<double>&);

}  // namespace orvane
