#pragma once

#include "plugin/exchange/key_times.h"
#include "sdk/core/control.h"
#include "sdk/core/node.h"
#include "sdk/geom/point3.h"
#include "sdk/geom/quat.h"

// The controllers of nodes, and what all classes do with them. They belong to the scene.
namespace orvane {

// The controllers of `node`'s transform; null where it has none.
Control* PositionController(INode& node);
Control* RotationController(INode& node);

// Sets the value of `controller` at `time` (ticks), local to the parent. Returns false, setting
// nothing, when the controller does not accept a value now or is null.
[[nodiscard]] bool SetPosition(Control* controller, TimeValue time, const Point3& position);
[[nodiscard]] bool SetRotation(Control* controller, TimeValue time, const Quat& rotation);

// Deletes the keys of two controllers, either of which may be null, from the first tick of `times`
// to the last: at each tick those of both. Intended: at every tick, not only the frames', so that
// keys made at another frame rate go too.
void ClearKeys(Control* first, Control* second, const KeyTimes& times);

}  // namespace orvane
