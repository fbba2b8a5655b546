#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "formats/trc/document.h"
#include "inspect/mapping/placed_marker.h"

// Which marker of a capture plays the role of which standard marker, by where it sits on a body
// that walks upright, and how it moves. Names are not looked at, and neither are units: all lengths
// are compared with the height of the body.
//
// A marker is suggested only when all of its part is as it is on a body, when its partner on the
// other side is too, and when the two are mirrored. Nothing is when nobody walks, when what is
// highest is no head, when there is more than one body, or when it does not face the way it goes.
// Left and right are those of a right-handed space: a capture that is mirrored as a whole cannot be
// told from one that is not. Sticks are not looked for.
//
// Takes time in proportion to the frames, and to the square of the markers, of which 120 are too
// many. Markers are told by their indices in the document, from 0. Nothing fails but for want of
// memory. May be called from any thread; the document is only read.

namespace orvane {

struct GeometrySuggestion {
  // In the order in which the mapping creator asks for them.
  std::vector<PlacedMarker> sure;
  std::vector<UnsurePlace> unsure;   // what is left out, from the head down
  std::vector<std::string> missing;  // standard markers that are needed, and that none plays

  // Markers that play no role; indices, rising.
  std::vector<std::size_t> without_role;

  // Why nothing is suggested, as a sentence without its full stop; empty otherwise.
  std::string problem;
};

[[nodiscard]] GeometrySuggestion SuggestByGeometry(const TRCDocument& document);

}  // namespace orvane
