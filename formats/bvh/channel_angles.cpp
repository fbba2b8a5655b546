#include "formats/bvh/channel_angles.h"

#include <cmath>

namespace orvane {
namespace {

constexpr double kPi = 3.141592653589793;

// Below this cosine of x only the sum or the difference of y and z can be told.
constexpr double kGimbalLock = 1e-9;

double WithinHalfATurn(double angle, double of) { return of + std::remainder(angle - of, 2 * kPi); }

BvhAngles WithinHalfATurn(const BvhAngles& angles, const BvhAngles& of) {
  return {WithinHalfATurn(angles.z, of.z), WithinHalfATurn(angles.x, of.x),
          WithinHalfATurn(angles.y, of.y)};
}

double Distance(const BvhAngles& left, const BvhAngles& right) {
  return std::abs(left.z - right.z) + std::abs(left.x - right.x) + std::abs(left.y - right.y);
}

// One of the triples that give `m`. Since z is found behind y, from what y leaves of the rotation,
// it makes up for a y that is not told by much.
BvhAngles AnglesOf(const RotationMatrix3& m, double y_in_gimbal_lock) {
  const double cosine = std::hypot(m.Element(2, 0), m.Element(2, 2));
  const bool is_locked = cosine < kGimbalLock;
  const double y = is_locked ? y_in_gimbal_lock : std::atan2(-m.Element(2, 0), m.Element(2, 2));
  const double cy = std::cos(y), sy = std::sin(y);
  return {std::atan2(m.Element(1, 0) * cy + m.Element(1, 2) * sy,
                     m.Element(0, 0) * cy + m.Element(0, 2) * sy),
          std::atan2(m.Element(2, 1), cosine), y};
}

}  // namespace

BvhAngles AnglesNear(const RotationMatrix3& rotation, const BvhAngles& previous) {
  const BvhAngles angles = AnglesOf(rotation, previous.y);
  const BvhAngles near = WithinHalfATurn(angles, previous);
  const BvhAngles other =
      WithinHalfATurn({angles.z + kPi, kPi - angles.x, angles.y + kPi}, previous);
  return Distance(other, previous) < Distance(near, previous) ? other : near;
}

}  // namespace orvane
