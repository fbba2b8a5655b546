#pragma once

// Angles as a motion file in degrees has to say them, so that they come back. Belongs to the
// writer.
namespace orvane {

// The number of degrees that the reader takes for the very angle `radians`, and of several the one
// with the shortest text. Of an angle that it takes no number for, the one that comes nearest: no
// file in degrees says such an angle.
[[nodiscard]] double DegreesReadAs(double radians);

}  // namespace orvane
