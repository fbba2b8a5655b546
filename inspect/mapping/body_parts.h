#pragma once

#include "inspect/mapping/place_board.h"

// The parts of the body, and how their markers are known by where they are. Each of these gives
// roles to what is sure, and says what it leaves out. A part is known by a pattern of markers that
// is complete: so many, at such distances, that keep them. A marker too many in a pattern makes all
// of it unsure, and so does a difference between two that is small. Lengths are heights of the
// body.

namespace orvane {

// Four markers, in two mirrored pairs at least 0.035 behind each other; one on top of them does not
// count. Of three of them, the pair that is complete.
void FindHead(PlaceBoard& board);

// The one pair at a height of 0.79 to 0.94 that is mirrored, 0.07 to 0.17 from the middle.
void FindShoulders(PlaceBoard& board);

// Markers in the middle, between the pelvis and the head, front and back at least 0.05 apart. Two
// are needed on a side: at the back C7, as high as the shoulders, and T10, 0.09 to 0.17 below; in
// front CLAV, and STRN 0.055 to 0.12 below.
void FindTrunk(PlaceBoard& board);

// Markers that keep their distances at a height of 0.48 to 0.69: one mirrored pair in front, one at
// the back, one in the middle at the back.
void FindPelvis(PlaceBoard& board);

// The shoulder must be known. The elbow's markers are 0.14 to 0.225 from it; of two, the outer one
// must be further out; one alone must be at the outer side or the back. The wrist's two are equally
// far from the elbow, and the front one, by 0.6 of their distance, is at the thumb; the hand's is
// further from the elbow by 0.025.
void FindArm(PlaceBoard& board, const Side& side);

// The foot's markers are below 0.1 and keep their distances: the heel behind, the ankle above and
// at the outer side, three in front. The knee's are half way from the hip to the ankle, keep their
// distances to both, and the outer one is further out by 0.04.
void FindLeg(PlaceBoard& board, const Side& side);

// Whether the body faces the way it goes: the shank is further behind the knee than it gets ahead
// of it, in each leg that shows both, and one leg does.
[[nodiscard]] bool FacesItsWay(const PlaceBoard& board);

}  // namespace orvane
