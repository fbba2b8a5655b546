#pragma once

#include "formats/math/quaternion.h"
#include "formats/math/vector.h"
#include "sdk/core/control.h"

// Writing positions and rotations to controllers, which belong to the scene.
namespace orvane {

// Sets the value of `controller` at `time` (ticks), in host axes and system units, local to the
// parent. Returns false, setting nothing, when the controller does not accept a value now or there
// is none.
bool SetPosition(Control* controller, TimeValue time, const Vector3& position);
bool SetRotation(Control* controller, TimeValue time, const Quaternion& rotation);

}  // namespace orvane
