#include "host/animation/euler_controller.h"

#include <cmath>

#include "host/animation/class_ids.h"

namespace host {
namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kTurn = 2.0 * kPi;
constexpr double kThreeHalfTurns = 1.5 * kTurn;

// The way from `from` to `to`, the shorter way round: the remainder of the turn. Within three half
// turns the difference is the same, to the sign of a zero, and many times as fast.
double TurnBetween(double from, double to) {
  const double turn = to - from;
  const double size = std::abs(turn);
  if (size <= kPi) return turn;
  if (size < kThreeHalfTurns) return std::copysign(1.0, turn) * (size - kTurn);
  return std::remainder(turn, kTurn);
}

Vector TurnBetween(const Vector& from, const Vector& to) {
  return {TurnBetween(from.x, to.x), TurnBetween(from.y, to.y), TurnBetween(from.z, to.z)};
}

Vector Sum(const Vector& angles, const Vector& turn, double share) {
  return {angles.x + turn.x * share, angles.y + turn.y * share, angles.z + turn.z * share};
}

double SquaredLength(const Vector& turn) {
  return turn.x * turn.x + turn.y * turn.y + turn.z * turn.z;
}

// Of the triples that give the rotation of `angles`, the one nearest to `reference`: each angle may
// go round any number of times, and (x + 180, 180 - y, z + 180) is the same rotation.
Vector NearestTriple(const Vector& angles, const Vector& reference) {
  const Vector turn = TurnBetween(reference, angles);
  const Vector other_turn =
      TurnBetween(reference, {angles.x + kPi, kPi - angles.y, angles.z + kPi});
  const bool other_is_nearer = SquaredLength(other_turn) < SquaredLength(turn);
  return Sum(reference, other_is_nearer ? other_turn : turn, 1.0);
}

Vector AnglesOf(const Quat& rotation) { return ToEuler(FromQuat(rotation)); }

}  // namespace

EulerController::EulerController(const ControllerEnvironment& environment)
    : RotationController(environment, kRotationControllerSuperClass, kEulerRotationClass) {}

EulerController::Rotation EulerController::OnTracks(TimeValue time) const {
  const std::size_t next = keys_.LowerBound(time);
  if (next == keys_.Size()) return keys_[next - 1].value;
  if (next == 0 || keys_[next].tick == time) return keys_[next].value;
  const Vector& from = keys_[next - 1].value.angles;
  const Vector& to = keys_[next].value.angles;
  const double fraction = FractionBetween(keys_[next - 1].tick, keys_[next].tick, time);
  const Vector angles = Sum(from, TurnBetween(from, to), fraction);
  return {ToQuat(FromEuler(angles)), angles};
}

Quat EulerController::ValueAt(TimeValue time) const {
  return keys_.IsEmpty() ? constant_ : OnTracks(time).rotation;
}

void EulerController::SetConstant(const Quat& value) {
  constant_ = value;
  NotifyChange();
}

Vector EulerController::AnglesForKey(TimeValue time, const Quat& value) const {
  const Vector angles = AnglesOf(value);
  if (keys_.IsEmpty()) return angles;
  const std::size_t next = keys_.LowerBound(time);
  return NearestTriple(angles, keys_[next > 0 ? next - 1 : 0].value.angles);
}

void EulerController::SetKey(TimeValue time, const Quat& value) {
  SetKey(time, value, AnglesForKey(time, value));
}

void EulerController::SetKey(TimeValue time, const Quat& value, const Vector& angles) {
  keys_.Set(time, {value, angles});
  NotifyChange();
}

void EulerController::DeleteAllKeys() {
  keys_.Clear();
  NotifyChange();
}

void EulerController::DeleteKeyAt(TimeValue time) {
  if (keys_.Delete(time)) NotifyChange();
}

void EulerController::ShiftKeys(TimeValue time, const Quat& target) {
  const Vector current = OnTracks(time).angles;
  const Vector shift = TurnBetween(current, NearestTriple(AnglesOf(target), current));
  for (std::size_t key = 0; key < keys_.Size(); ++key) {
    const Vector angles = Sum(keys_[key].value.angles, shift, 1.0);
    const bool is_there = keys_[key].tick == time;
    keys_.Replace(key, {is_there ? target : ToQuat(FromEuler(angles)), angles});
  }
  NotifyChange();
}

}  // namespace host
