#pragma once

#include <functional>

#include "host/animation/transform_controller.h"
#include "platform/export.h"
#include "sdk/core/types.h"
#include "sdk/geom/matrix3.h"

// How a node's controllers change so that it stays where it is when its parent does not. Which
// transforms those are is the node's to say.

namespace host {

// Sets the controllers of `transform` so that its values become those of `wanted`, which is asked
// for them before anything changes: a controller with keys is converted at each of its keys, one
// without at `now`. Whether animate mode is on makes no difference.
SKELDER_API void ConvertLocal(TransformController& transform, TimeValue now,
                              const std::function<Matrix3(TimeValue)>& wanted);

}  // namespace host
