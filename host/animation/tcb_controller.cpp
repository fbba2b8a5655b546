#include "host/animation/tcb_controller.h"

#include "host/base/quaternion.h"

namespace host {
namespace {

// The rotation from `from` to `to` in the frame of `from`, the shorter way round, as half its
// rotation vector.
Vector Chord(const Quaternion& from, const Quaternion& to) {
  return Log(Product(Conjugate(from), NearerSign(to, from)));
}

// The tangent, for the time of the inner of two chords that meet at a key, given the share of that
// time in the time of both.
Vector Tangent(const Vector& inner, const Vector& outer, double share) {
  return {(inner.x + outer.x) * share, (inner.y + outer.y) * share, (inner.z + outer.z) * share};
}

// `key` turned by half of `to` - `from`: the inner point that gives a segment its tangent there.
Quaternion InnerPoint(const Quaternion& key, const Vector& from, const Vector& to) {
  return Product(key, Exp({(to.x - from.x) / 2.0, (to.y - from.y) / 2.0, (to.z - from.z) / 2.0}));
}

double Ticks(TimeValue from, TimeValue to) {
  const double start = from;
  return to - start;
}

}  // namespace

TcbController::TcbController(const ControllerEnvironment& environment)
    : RotationController(environment, kRotationControllerSuperClass, kTcbRotationClass) {}

Quat TcbController::ValueAt(TimeValue time) const {
  if (keys_.IsEmpty()) return constant_;
  const std::size_t next = keys_.LowerBound(time);
  if (next == keys_.Size()) return keys_[next - 1].value;
  if (next == 0 || keys_[next].tick == time) return keys_[next].value;
  return Between(next - 1, time);
}

// A spherical cubic between keys number `from` and `from` + 1.
Quat TcbController::Between(std::size_t from, TimeValue time) const {
  const std::size_t to = from + 1;
  const Quaternion start = FromQuat(keys_[from].value);
  const Quaternion end = NearerSign(FromQuat(keys_[to].value), start);
  const Vector chord = Chord(start, end);
  const double ticks = Ticks(keys_[from].tick, keys_[to].tick);

  Quaternion after_start = start;
  if (from > 0) {
    const Vector before = Chord(FromQuat(keys_[from - 1].value), start);
    const double share = ticks / Ticks(keys_[from - 1].tick, keys_[to].tick);
    after_start = InnerPoint(start, chord, Tangent(chord, before, share));
  }
  Quaternion before_end = end;
  if (to + 1 < keys_.Size()) {
    const Vector after = Chord(end, FromQuat(keys_[to + 1].value));
    const double share = ticks / Ticks(keys_[from].tick, keys_[to + 1].tick);
    before_end = InnerPoint(end, Tangent(chord, after, share), chord);
  }

  const double fraction = FractionBetween(keys_[from].tick, keys_[to].tick, time);
  return ToQuat(Slerp(Slerp(start, end, fraction), Slerp(after_start, before_end, fraction),
                      2.0 * fraction * (1.0 - fraction)));
}

void TcbController::SetConstant(const Quat& value) {
  constant_ = value;
  NotifyChange();
}

void TcbController::SetKey(TimeValue time, const Quat& value) {
  keys_.Set(time, value);
  NotifyChange();
}

void TcbController::DeleteAllKeys() {
  keys_.Clear();
  NotifyChange();
}

void TcbController::DeleteKeyAt(TimeValue time) {
  if (keys_.Delete(time)) NotifyChange();
}

void TcbController::ShiftKeys(TimeValue time, const Quat& target) {
  const Quaternion turn = Product(Conjugate(FromQuat(ValueAt(time))), FromQuat(target));
  for (std::size_t key = 0; key < keys_.Size(); ++key) {
    const bool is_there = keys_[key].tick == time;
    keys_.Replace(key, is_there ? target : ToQuat(Product(FromQuat(keys_[key].value), turn)));
  }
  NotifyChange();
}

}  // namespace host
