#pragma once

#include "formats/math/euler_rotation.h"

// What lies between two frames. Angles are radians. Nothing fails. May be called from any thread.
namespace orvane {

// How a rotation goes from one frame to the next, where a new frame lies between them.
enum class RotationPath {
  kLinear,  // each Euler angle by itself, the shorter way round
  kSlerp,   // about one axis at one speed, the shorter way round
};

// The number that lies `share`, from 0 to 1, of the way from `from` to `to`. From and to what is
// not finite there is no way: the nearer of the two.
[[nodiscard]] double Between(double from, double to, double share);

// The rotation there, in the default Euler order, with angles next to those of `from`.
[[nodiscard]] EulerRotation Between(const EulerRotation& from, const EulerRotation& to,
                                    double share, RotationPath path);

}  // namespace orvane
