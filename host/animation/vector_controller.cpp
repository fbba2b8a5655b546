#include "host/animation/vector_controller.h"

#include "host/animation/class_ids.h"

namespace host {
namespace {

float Between(float from, float to, double fraction) {
  const double start = from;
  return static_cast<float>(start + (to - start) * fraction);
}

float ShiftedFactor(float value, float from, float to) {
  return from != 0.0F ? value * (to / from) : value + to;
}

}  // namespace

Point3 VectorController::ValueAt(TimeValue time) const {
  if (keys_.IsEmpty()) return constant_;
  const std::size_t next = keys_.LowerBound(time);
  if (next == keys_.Size()) return keys_[next - 1].value;
  if (next == 0 || keys_[next].tick == time) return keys_[next].value;
  const Point3& from = keys_[next - 1].value;
  const Point3& to = keys_[next].value;
  const double fraction = FractionBetween(keys_[next - 1].tick, keys_[next].tick, time);
  return {Between(from.x, to.x, fraction), Between(from.y, to.y, fraction),
          Between(from.z, to.z, fraction)};
}

void VectorController::SetConstant(const Point3& value) {
  constant_ = value;
  NotifyChange();
}

void VectorController::SetKey(TimeValue time, const Point3& value) {
  keys_.Set(time, value);
  NotifyChange();
}

void VectorController::DeleteAllKeys() {
  keys_.Clear();
  NotifyChange();
}

void VectorController::DeleteKeyAt(TimeValue time) {
  if (keys_.Delete(time)) NotifyChange();
}

void VectorController::ShiftKeys(TimeValue time, const Point3& target) {
  const Point3 current = ValueAt(time);
  for (std::size_t key = 0; key < keys_.Size(); ++key) {
    const bool is_there = keys_[key].tick == time;
    keys_.Replace(key, is_there ? target : Shifted(keys_[key].value, current, target));
  }
  NotifyChange();
}

PositionController::PositionController(const ControllerEnvironment& environment)
    : VectorController(environment, kPositionControllerSuperClass, kLinearPositionClass, Point3()) {
}

Point3 PositionController::Changed(const Point3& value, const Point3& change) const {
  return {value.x + change.x, value.y + change.y, value.z + change.z};
}

Point3 PositionController::Shifted(const Point3& value, const Point3& from,
                                   const Point3& to) const {
  return {value.x + (to.x - from.x), value.y + (to.y - from.y), value.z + (to.z - from.z)};
}

ScaleController::ScaleController(const ControllerEnvironment& environment)
    : VectorController(environment, kScaleControllerSuperClass, kLinearScaleClass,
                       Point3(1.0F, 1.0F, 1.0F)) {}

Point3 ScaleController::Changed(const Point3& value, const Point3& change) const {
  return {value.x * change.x, value.y * change.y, value.z * change.z};
}

Point3 ScaleController::Shifted(const Point3& value, const Point3& from, const Point3& to) const {
  return {ShiftedFactor(value.x, from.x, to.x), ShiftedFactor(value.y, from.y, to.y),
          ShiftedFactor(value.z, from.z, to.z)};
}

}  // namespace host
