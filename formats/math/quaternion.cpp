#include "formats/math/quaternion.h"

#include <cmath>
#include <utility>

namespace orvane {

// Ken Shoemake, "Animating Rotation with Quaternion Curves", SIGGRAPH 1985, appendix.
template <typename T>
OrvaneQuaternion<T>& OrvaneQuaternion<T>::SetMatrix(const OrvaneRotationMatrix3<T>& m) {
  const T trace = m.Element(0, 0) + m.Element(1, 1) + m.Element(2, 2);
  auto& q = components_;
  if (trace > 0) {
    T s = std::sqrt(trace + 1);
    q[3] = s / 2;
    s = 0.5 / s;
    q[0] = (m.Element(2, 1) - m.Element(1, 2)) * s;
    q[1] = (m.Element(0, 2) - m.Element(2, 0)) * s;
    q[2] = (m.Element(1, 0) - m.Element(0, 1)) * s;
    return *this;
  }
  unsigned int i = m.Element(0, 0) >= m.Element(1, 1) ? 0 : 1;
  if (!(m.Element(i, i) >= m.Element(2, 2))) i = 2;
  const unsigned int j = (i + 1) % 3;
  const unsigned int k = (j + 1) % 3;
  T s = std::sqrt(m.Element(i, i) - (m.Element(j, j) + m.Element(k, k)) + 1);
  q[i] = s / 2;
  s = 0.5 / s;
  q[3] = (m.Element(k, j) - m.Element(j, k)) * s;
  q[j] = (m.Element(i, j) + m.Element(j, i)) * s;
  q[k] = (m.Element(i, k) + m.Element(k, i)) * s;
  return *this;
}

// Ken Shoemake, "Euler Angle Conversion", Graphics Gems IV, 1994.
template <typename T>
OrvaneQuaternion<T>& OrvaneQuaternion<T>::SetEuler(const OrvaneEulerRotation<T>& rotation) {
  const auto [i, j, k, odd_parity, repeats_first_axis, rotating_frame] = rotation.order().Decode();
  T a = rotation[0], b = rotation[1], c = rotation[2];
  if (rotating_frame) std::swap(a, c);
  a *= 0.5, b *= 0.5, c *= 0.5;
  if (odd_parity) b = -b;

  const T ci = std::cos(a), cj = std::cos(b), ch = std::cos(c);
  const T si = std::sin(a), sj = std::sin(b), sh = std::sin(c);
  const T cc = ci * ch, cs = ci * sh, sc = si * ch, ss = si * sh;
  auto& q = components_;
  if (repeats_first_axis) {
    q[i] = cj * (cs + sc), q[j] = sj * (cc + ss), q[k] = sj * (cs - sc), q[3] = cj * (cc - ss);
  } else {
    q[i] = cj * sc - sj * cs, q[j] = cj * ss + sj * cc, q[k] = cj * cs - sj * sc;
    q[3] = cj * cc + sj * ss;
  }
  if (odd_parity) q[j] = -q[j];
  return *this;
}

template <typename T>
OrvaneQuaternion<T>& OrvaneQuaternion<T>::SetAngleAxis(T angle_rad, const OrvaneVector3<T>& axis) {
  constexpr double kShortestAxis = 5e-8;
  const T half = angle_rad * 0.5;
  const T sine = std::sin(half);
  const T square = axis.x() * axis.x() + axis.y() * axis.y() + axis.z() * axis.z();
  const T length = std::sqrt(square);
  // Intended: an axis too short to have a direction becomes the X axis.
  OrvaneVector3<T> unit(1, 0, 0);
  if (square > 0 && length > kShortestAxis) {
    unit = OrvaneVector3<T>(axis.x() / length, axis.y() / length, axis.z() / length);
  }
  components_ = OrvaneVector4<T>(unit.x() * sine, unit.y() * sine, unit.z() * sine, std::cos(half));
  return *this;
}

template class OrvaneQuaternion<double>;

}  // namespace orvane
