#include "plugin/exchange/node_controllers.h"

#include <cstdint>

namespace orvane {
namespace {

bool SetValue(Control* controller, TimeValue time, const void* value) {
  constexpr int kCommit = 1;
  if (controller == nullptr || controller->CanAcceptValue() == 0) return false;
  controller->SetValue(time, value, kCommit, CTRL_ABSOLUTE);
  return true;
}

}  // namespace

Control* PositionController(INode& node) {
  Control* transform = node.GetTMController();
  return transform == nullptr ? nullptr : transform->GetPositionController();
}

Control* RotationController(INode& node) {
  Control* transform = node.GetTMController();
  return transform == nullptr ? nullptr : transform->GetRotationController();
}

bool SetPosition(Control* controller, TimeValue time, const Point3& position) {
  return SetValue(controller, time, &position);
}

bool SetRotation(Control* controller, TimeValue time, const Quat& rotation) {
  return SetValue(controller, time, &rotation);
}

void ClearKeys(Control* first, Control* second, const KeyTimes& times) {
  const std::int64_t end = times.EndTick();
  for (std::int64_t tick = times.BeginTick(); tick < end; ++tick) {
    if (first != nullptr) first->DeleteKeyAt(static_cast<TimeValue>(tick));
    if (second != nullptr) second->DeleteKeyAt(static_cast<TimeValue>(tick));
  }
}

}  // namespace orvane
