#pragma once

// How far numbers may be from their exact values in tests. Each bound is named for what it bounds.
namespace test {

// An element of a rotation matrix, or a component of a unit quaternion, after a few conversions.
inline constexpr double kRotationElement = 1e-14;

// An angle in radians that went through a matrix, well away from where the axes coincide.
inline constexpr double kAngle_rad = 1e-12;

// An angle in radians that was moved by whole turns.
inline constexpr double kTurnedAngle_rad = 1e-12;

// A length or a position in millimetres, computed through a chain of bones.
inline constexpr double kPosition_mm = 1e-9;

// A position told with one decimal, in millimetres.
inline constexpr double kRecordedPosition_mm = 0.06;

// An element of a matrix or quaternion that was stored in single precision a few times.
inline constexpr double kSingleElement = 1e-6;

// An angle in radians that was stored in single precision, well away from where the axes coincide.
inline constexpr double kSingleAngle_rad = 1e-5;

// A position of some hundreds, stored in single precision at every node above it.
inline constexpr double kSinglePosition = 1e-3;

// A number of the size of 1 in the host's single precision, after a few operations.
inline constexpr double kHostNumber = 1e-6;

// Positions and angles that went from a file through the host's single precision and back: so many
// millimetres, or such a share of the farthest distance from the origin, and so many degrees.
inline constexpr double kRoundTrip_mm = 1e-3;
inline constexpr double kRoundTripOfFarthest = 5e-7;
inline constexpr double kRoundTrip_deg = 1e-3;

}  // namespace test
