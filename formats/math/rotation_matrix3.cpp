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

// Intended: every sum begins with 0, which makes a lone -0 a 0.
template <typename T>
OrvaneRotationMatrix3<T> operator*(const OrvaneRotationMatrix3<T>& left,
                                   const OrvaneRotationMatrix3<T>& right) {
  const OrvaneVector3<T>& first = left[0];
  const OrvaneVector3<T>& second = left[1];
  const OrvaneVector3<T>& third = left[2];
  OrvaneRotationMatrix3<T> product;
  for (unsigned int c = 0; c < 3; ++c) {
    const T x = right[c][0], y = right[c][1], z = right[c][2];
    product[c] = OrvaneVector3<T>(T() + x * first[0] + y * second[0] + z * third[0],
                                  T() + x * first[1] + y * second[1] + z * third[1],
                                  T() + x * first[2] + y * second[2] + z * third[2]);
  }
  return product;
}

template class OrvaneRotationMatrix3<double>;
template OrvaneRotationMatrix3<double> operator*(const OrvaneRotationMatrix3<double>&,
                                                 const OrvaneRotationMatrix3<double>&);

}  // namespace orvane
