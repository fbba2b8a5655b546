#include "plugin/import_htr/controllers.h"

#include "plugin/exchange/node_controllers.h"
#include "plugin/skeleton/axis_conversion.h"

namespace orvane {
bool SetPosition(Control* controller, TimeValue time, const Vector3& position) {
  const Point3 value = HostPoint(position);
  return SetControllerValue(controller, time, &value);
}

bool SetRotation(Control* controller, TimeValue time, const Quaternion& rotation) {
  const Quat value = HostQuaternion(rotation);
  return SetControllerValue(controller, time, &value);
}

}  // namespace orvane
