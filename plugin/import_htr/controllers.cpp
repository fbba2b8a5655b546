#include "plugin/import_htr/controllers.h"

#include "plugin/skeleton/axis_conversion.h"

namespace orvane {
namespace {

constexpr int kCommit = 1;

bool SetValue(Control* controller, TimeValue time, const void* value) {
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

bool SetPosition(Control* controller, TimeValue time, const Vector3& position) {
  const Point3 value = HostPoint(position);
  return SetValue(controller, time, &value);
}

bool SetRotation(Control* controller, TimeValue time, const Quaternion& rotation) {
  const Quat value = HostQuaternion(rotation);
  return SetValue(controller, time, &value);
}

}  // namespace orvane
