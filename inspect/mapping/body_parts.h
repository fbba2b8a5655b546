#pragma once

#include "inspect/mapping/place_board.h"

// The parts of the body, and how their markers are known by where they are. Each of these gives
// roles to what is sure, and says what it leaves out. A part is known by a pattern of markers that
// is complete: so many, at such distances, that keep them. A marker too many in a pattern makes all
// of it unsure, and so does a difference between two that is small. Lengths are heights of the
// body.

namespace orvane {

// Four markers, in two mirrored pairs at least 0.035 behind each other; one on top of them, by
// 0.025, does not count. Of three of them, the pair that is complete.
void FindHead(PlaceBoard& board);

// The one pair at a height of 0.79 to 0.94 that is mirrored, 0.07 to 0.17 from the middle.
void FindShoulders(PlaceBoard& board);

// Markers within 0.035 of the middle at a height of 0.69 to 0.95, front and back at least 0.05
// apart, two on a side: at the back C7, as high as the shoulders but for 0.03, and T10, 0.09 to
// 0.17 below; in front CLAV, above 0.78, and STRN, 0.055 to 0.12 below.
void FindTrunk(PlaceBoard& board);

// Markers that keep their distances at a height of 0.48 to 0.69: a mirrored pair in front; one at
// the back, as far from those in front on both sides, but for 0.02; and one between that pair, by
// 0.02.
void FindPelvis(PlaceBoard& board);

// The shoulder must be known. The elbow's markers are 0.14 to 0.225 from it; of two, the outer one
// is further out by 0.6 of their distance; one alone is at the outer side or the back. Further
// away, by 0.65 to 1.5 upper arms, the wrist's two are equally far from the elbow, but for 0.02,
// and the one at the thumb is in front, by 0.6 of their distance; the hand's is further from the
// elbow by 0.025.
void FindArm(PlaceBoard& board, const Side& side);

// The foot's markers are below 0.1 and keep their distances: the heel hindmost by 0.025, and on the
// floor; the ankle ahead and 0.012 above it, at the outer side; three in front, of which the toe is
// ahead by 0.018. The knee's are at 0.42 to 0.58 of the way from the ankle to the hip and keep
// their distances to both; of two, the outer one is further out by 0.04.
void FindLeg(PlaceBoard& board, const Side& side);

// Whether the body faces the way it goes: a foot has its toes in front of its ankle, or a shank is
// 1.25 times as far behind the knee as it gets ahead of it; and none that is seen is not.
[[nodiscard]] bool FacesItsWay(const PlaceBoard& board);

}  // namespace orvane
