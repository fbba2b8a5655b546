#include "host/animation/rotation_controller.h"

#include "host/base/quaternion.h"

namespace host {

Quat RotationController::Changed(const Quat& value, const Quat& change) const {
  return ToQuat(Product(FromQuat(value), FromQuat(change)));
}

}  // namespace host
