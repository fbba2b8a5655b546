#pragma once

#include "platform/export.h"
#include "sdk/geom/matrix3.h"
#include "sdk/geom/point3.h"
#include "sdk/geom/quat.h"

// Transforms put together from their parts. Taking them apart is the SDK's (sdk/geom/matrix3.h).

namespace host {

// The transform scale * rotation * translation (row-vector order), computed in double precision and
// rounded once: what DecomposeMatrix takes apart. A quaternion need not have unit length; the zero
// quaternion counts as the identity.
SKELDER_API Matrix3 ComposeMatrix(const Point3& position, const Quat& rotation,
                                  const Point3& scale);

}  // namespace host
