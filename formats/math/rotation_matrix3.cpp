#include "formats/math/rotation_matrix3.h"

#include <cmath>
#include <utility>

#include "formats/math/euler_rotation.h"

namespace orvane {

// Ken Shoemake, "Euler Angle Conversion", Graphics Gems IV, 1994.
template <typename T>
OrvaneRotationMatrix3<T>& OrvaneRotationMatrix3<T>::Set(const OrvaneEulerRotation<T>& rotation) {
  const auto [i, j, k, odd_parity, repeats_first_axis, rotating_frame] = rotation.order().Decode();
  T a = rotation[0], b = rotation[1], c = rotation[2];
  if (rotating_frame) std::swap(a, c);
  if (odd_parity) a = -a, b = -b, c = -c;

  const T ci = std::cos(a), cj = std::cos(b), ch = std::cos(c);
  const T si = std::sin(a), sj = std::sin(b), sh = std::sin(c);
  const T cc = ci * ch, cs = ci * sh, sc = si * ch, ss = si * sh;
  auto& m = vectors_;  // m[column][row]
  if (repeats_first_axis) {
    m[i][i] = cj, m[j][i] = sj * si, m[k][i] = sj * ci;
    m[i][j] = sj * sh, m[j][j] = -cj * ss + cc, m[k][j] = -cj * cs - sc;
    m[i][k] = -sj * ch, m[j][k] = cj * sc + cs, m[k][k] = cj * cc - ss;
  } else {
    m[i][i] = cj * ch, m[j][i] = sj * sc - cs, m[k][i] = sj * cc + ss;
    m[i][j] = cj * sh, m[j][j] = sj * ss + cc, m[k][j] = sj * cs - sc;
    m[i][k] = -sj, m[j][k] = cj * si, m[k][k] = cj * ci;
  }
  return *this;
}

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
