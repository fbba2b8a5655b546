#pragma once

#include "formats/edit/resampling.h"
#include "formats/math/euler_rotation.h"

// Rotations between two frames. Belongs to resampling.
namespace orvane {

// The number that lies `share`, from 0 to 1, of the way from `from` to `to`. From and to what is
// not finite there is no way: the nearer of the two.
[[nodiscard]] double Between(double from, double to, double share);

// The rotation there, in the default Euler order, with angles next to those of `from`.
[[nodiscard]] EulerRotation Between(const EulerRotation& from, const EulerRotation& to,
                                    double share, RotationPath path);

}  // namespace orvane
