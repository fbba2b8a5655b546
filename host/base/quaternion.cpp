#include "host/base/quaternion.h"

#include <cmath>

namespace host {
namespace {

// Below this sine a rotation is so small that its axis is not worth a division.
constexpr double kSmallSine = 1e-12;

// Below this cosine of the pitch the first and the third Euler angle turn about the same axis.
constexpr double kGimbalCosine = 1e-9;

Quaternion WeightedSum(const Quaternion& a, double weight_a, const Quaternion& b, double weight_b) {
  return {a.x * weight_a + b.x * weight_b, a.y * weight_a + b.y * weight_b,
          a.z * weight_a + b.z * weight_b, a.w * weight_a + b.w * weight_b};
}

}  // namespace

Quaternion Normalized(const Quaternion& rotation) {
  const double length = std::sqrt(Dot(rotation, rotation));
  if (!(length > 0.0)) return {};
  return {rotation.x / length, rotation.y / length, rotation.z / length, rotation.w / length};
}

Quaternion FromQuat(const Quat& rotation) {
  return Normalized({rotation.x, rotation.y, rotation.z, rotation.w});
}

Quat ToQuat(const Quaternion& rotation) {
  return {static_cast<float>(rotation.x), static_cast<float>(rotation.y),
          static_cast<float>(rotation.z), static_cast<float>(rotation.w)};
}

Quaternion Product(const Quaternion& first, const Quaternion& second) {
  const Quaternion& a = first;
  const Quaternion& b = second;
  return {
      a.w * b.x + a.x * b.w + a.y * b.z - a.z * b.y, a.w * b.y - a.x * b.z + a.y * b.w + a.z * b.x,
      a.w * b.z + a.x * b.y - a.y * b.x + a.z * b.w, a.w * b.w - a.x * b.x - a.y * b.y - a.z * b.z};
}

Quaternion Conjugate(const Quaternion& rotation) {
  return {-rotation.x, -rotation.y, -rotation.z, rotation.w};
}

double Dot(const Quaternion& left, const Quaternion& right) {
  return left.x * right.x + left.y * right.y + left.z * right.z + left.w * right.w;
}

Quaternion NearerSign(const Quaternion& rotation, const Quaternion& reference) {
  if (Dot(rotation, reference) >= 0.0) return rotation;
  return {-rotation.x, -rotation.y, -rotation.z, -rotation.w};
}

Vector Log(const Quaternion& rotation) {
  const Quaternion& q = rotation;
  const double sine = std::sqrt(q.x * q.x + q.y * q.y + q.z * q.z);
  const double factor = sine > kSmallSine ? std::atan2(sine, q.w) / sine : 1.0;
  return {q.x * factor, q.y * factor, q.z * factor};
}

Quaternion Exp(const Vector& half_rotation) {
  const Vector& v = half_rotation;
  const double angle = std::sqrt(v.x * v.x + v.y * v.y + v.z * v.z);
  const double factor = angle > kSmallSine ? std::sin(angle) / angle : 1.0;
  return {v.x * factor, v.y * factor, v.z * factor, std::cos(angle)};
}

Quaternion Slerp(const Quaternion& from, const Quaternion& to, double fraction) {
  const Quaternion difference = WeightedSum(to, 1.0, from, -1.0);
  const Quaternion sum = WeightedSum(to, 1.0, from, 1.0);
  const double angle =
      2.0 * std::atan2(std::sqrt(Dot(difference, difference)), std::sqrt(Dot(sum, sum)));
  const double sine = std::sin(angle);
  if (!(sine > kSmallSine)) return Normalized(WeightedSum(from, 1.0 - fraction, to, fraction));
  return Normalized(WeightedSum(from, std::sin((1.0 - fraction) * angle) / sine, to,
                                std::sin(fraction * angle) / sine));
}

Quaternion FromEuler(const Vector& angles) {
  const Quaternion about_x{std::sin(angles.x / 2.0), 0.0, 0.0, std::cos(angles.x / 2.0)};
  const Quaternion about_y{0.0, std::sin(angles.y / 2.0), 0.0, std::cos(angles.y / 2.0)};
  const Quaternion about_z{0.0, 0.0, std::sin(angles.z / 2.0), std::cos(angles.z / 2.0)};
  Quaternion textbook = Product(about_z, Product(about_y, about_x));
  textbook.w = -textbook.w;
  return textbook;
}

// The names are those of the column-vector matrix of (x, y, z, -w): m21 is in row 2, column 1.
Vector ToEuler(const Quaternion& rotation) {
  const Quaternion q = Normalized(rotation);
  const double m00 = 1.0 - 2.0 * (q.y * q.y + q.z * q.z);
  const double m10 = 2.0 * (q.x * q.y - q.z * q.w);
  const double m20 = 2.0 * (q.x * q.z + q.y * q.w);
  const double cosine = std::hypot(m00, m10);
  const double y = std::atan2(-m20, cosine);
  if (cosine < kGimbalCosine) {
    const double m11 = 1.0 - 2.0 * (q.x * q.x + q.z * q.z);
    const double m12 = 2.0 * (q.y * q.z + q.x * q.w);
    return {std::atan2(-m12, m11), y, 0.0};
  }
  const double m21 = 2.0 * (q.y * q.z - q.x * q.w);
  const double m22 = 1.0 - 2.0 * (q.x * q.x + q.y * q.y);
  return {std::atan2(m21, m22), y, std::atan2(m10, m00)};
}

}  // namespace host
