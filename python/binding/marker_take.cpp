#include "python/binding/marker_take.h"

#include <algorithm>

#include "formats/array/array_too_large.h"

namespace binding {

void MarkerTake::Settle(const std::string& path) {
  try {
    points_ = document_.PointsView();
  } catch (const orvane::ArrayTooLarge& error) {
    throw TooLarge(path, error);
  }
}

std::size_t FrameCountOf(const orvane::TRCDocument& document) {
  std::size_t frames = 0;
  for (const orvane::TRCMarker& marker : document.markers()) {
    frames = std::max(frames, marker.SampleCount());
  }
  return frames;
}

}  // namespace binding
