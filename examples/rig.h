#pragma once

#include "host/scene/scene.h"

// A scene that was made by hand and that no import has touched: a crane that turns for a second,
// with all that an export has to look out for.
namespace examples {

// Builds in `scene`, a new one, at 30 frames a second from frame 0 to 30, in centimetres:
//
//   Yard                a dummy, moved and twice as large
//     Mast              a bone, upright, that turns by 90 degrees: the root of an export
//       Boom            a bone whose object does not stand where its node does
//         Hook_Effector a bone that no export takes
//         Pulley        a point helper, at which the bones end
//           Cable       a bone below it
//       Counterweight   a bone half as large
//       Boom            a bone of a name that is taken
//         Winch         a bone below it
void BuildRig(host::Scene& scene);

}  // namespace examples
