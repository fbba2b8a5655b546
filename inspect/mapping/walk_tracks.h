#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "formats/trc/document.h"

// Where the markers of a capture are, seen from the body that walks with them.
//
// Up is Y, or Z where the markers seem to stand along Z. Forward is the way that they go, all taken
// together: in each frame it is the direction of the stretch, up to 0.7 s before and after it, in
// which they get by 0.35 of their height. Frames in which they do not are passed over. Left is
// to the left of that, in a right-handed space. The origin of a frame is where most of the markers
// are in the same places in which they mostly are.
//
// There is no walk when that is so in less than 20 frames, or for less than 0.8 of the height.
//
// Of a long capture 300 frames are looked at, taken evenly from all of it; the way is taken from up
// to 4,000. Time goes with the markers and the frames. Nothing fails but for want of memory.

namespace orvane {

// In the file's unit of length.
struct BodyPoint {
  double left = 0;
  double up = 0;  // from where heights are 0 in the file
  double forward = 0;
};

// Of one marker in each frame that is looked at; nothing where it was not seen.
using BodyTrack = std::vector<std::optional<BodyPoint>>;

struct WalkTracks {
  std::vector<BodyTrack> markers;  // all of the same length
  std::string problem;             // why there are none: a sentence without its full stop, or empty
};

[[nodiscard]] WalkTracks TrackWalk(const TRCDocument& document);

}  // namespace orvane
