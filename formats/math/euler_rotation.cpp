#include "formats/math/euler_rotation.h"

#include <cmath>

#include "formats/math/euler_columns.h"
#include "formats/math/rotation_matrix3.h"

namespace orvane {
namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kTwoPi = 6.283185307179586;

// Intended: sixteen times the epsilon of single precision, although all arithmetic is double; a
// host transform, which is single, counts as degenerate within its own rounding.
constexpr double kDegenerate = 1.9073486328125e-6;

// The three angles in the order of the formulas, before parity and frame are undone.
template <typename T>
struct Angles {
  T a, b, c;
};

template <typename T>
Angles<T> RepeatedAxisAngles(const OrvaneRotationMatrix3<T>& m, const OrvaneEulerOrder::Axes& at) {
  const auto [i, j, k, odd, repeats, rotating] = at;
  const T sy = std::sqrt(m.Element(i, j) * m.Element(i, j) + m.Element(i, k) * m.Element(i, k));
  const T b = std::atan2(sy, m.Element(i, i));
  if (sy > kDegenerate) {
    return {std::atan2(m.Element(i, j), m.Element(i, k)), b,
            std::atan2(m.Element(j, i), -m.Element(k, i))};
  }
  return {std::atan2(-m.Element(j, k), m.Element(j, j)), b, T()};
}

template <typename T>
Angles<T> DistinctAxesAngles(const OrvaneRotationMatrix3<T>& m, const OrvaneEulerOrder::Axes& at) {
  const auto [i, j, k, odd, repeats, rotating] = at;
  const T cy = std::sqrt(m.Element(i, i) * m.Element(i, i) + m.Element(j, i) * m.Element(j, i));
  const T b = std::atan2(-m.Element(k, i), cy);
  if (cy > kDegenerate) {
    return {std::atan2(m.Element(k, j), m.Element(k, k)), b,
            std::atan2(m.Element(j, i), m.Element(i, i))};
  }
  return {std::atan2(-m.Element(j, k), m.Element(j, j)), b, T()};
}

template <typename T>
T WrapOnce(T angle) {
  if (angle < -kPi) return angle + kTwoPi;
  if (angle > kPi) return angle - kTwoPi;
  return angle;
}

// Moves `angle` by whole turns to within half a turn of `previous`.
template <typename T>
T Continue(T angle, T previous) {
  const T distance = angle - previous;
  if (!std::isfinite(distance)) return angle;
  // One division takes the place of very many subtractions, and of those that a large angle
  // swallows.
  constexpr double kManyTurns = 64 * kTwoPi;
  constexpr double kLargeAngle = 1e9;
  if (std::abs(distance) > kManyTurns || std::abs(angle) > kLargeAngle) {
    angle = previous + std::remainder(distance, kTwoPi);
  }
  while (angle > previous + kPi) angle -= kTwoPi;
  while (angle < previous - kPi) angle += kTwoPi;
  return angle;
}

}  // namespace

template <typename T>
OrvaneRotationMatrix3<T>& OrvaneRotationMatrix3<T>::Set(const OrvaneEulerRotation<T>& rotation) {
  SetEulerColumns(rotation.order().Decode(), rotation[0], rotation[1], rotation[2], vectors_);
  return *this;
}

template <typename T>
OrvaneEulerRotation<T>& OrvaneEulerRotation<T>::Set(const OrvaneRotationMatrix3<T>& matrix) {
  const OrvaneEulerOrder::Axes axes = order_.Decode();
  auto [a, b, c] =
      axes.repeats_first_axis ? RepeatedAxisAngles(matrix, axes) : DistinctAxesAngles(matrix, axes);
  const T sign = axes.odd_parity ? -1 : 1;
  a = WrapOnce(sign * a);
  b = WrapOnce(sign * b);
  c = WrapOnce(sign * c);
  angles_ = axes.rotating_frame ? OrvaneVector3<T>(c, b, a) : OrvaneVector3<T>(a, b, c);
  return *this;
}

template <typename T>
OrvaneEulerRotation<T>& OrvaneEulerRotation<T>::Set(const OrvaneEulerRotation& other) {
  if (order_.code() != other.order_.code()) return Set(OrvaneRotationMatrix3<T>(other));
  angles_ = other.angles_;
  return *this;
}

template <typename T>
OrvaneEulerRotation<T> ContinueEulerRotation(OrvaneEulerRotation<T> current,
                                             OrvaneEulerRotation<T> previous) {
  for (unsigned int index = 0; index < 3; ++index) {
    current[index] = Continue(current[index], previous[index]);
  }
  return OrvaneEulerRotation<T>().Set(current);
}

template OrvaneRotationMatrix3<double>& OrvaneRotationMatrix3<double>::Set(
    const OrvaneEulerRotation<double>&);
template class OrvaneEulerRotation<double>;
template OrvaneEulerRotation<double> ContinueEulerRotation(OrvaneEulerRotation<double>,
                                                           OrvaneEulerRotation<double>);

}  // namespace orvane
