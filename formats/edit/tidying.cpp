#include "formats/edit/tidying.h"

#include <algorithm>
#include <cstdint>

namespace orvane {
namespace {

bool IsSeen(const TRCMarker& marker, std::size_t frame) {
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
  return marker.GetSample(frame, x, y, z);
}

bool IsAnySeen(const TRCDocument& document, std::size_t frame) {
  return std::any_of(document.markers().begin(), document.markers().end(),
                     [frame](const TRCMarker& marker) { return IsSeen(marker, frame); });
}

}  // namespace

void Tidy(HtrDocument& document) {
  std::size_t most = 0;
  for (HtrSegment& segment : document.segments()) {
    if (segment.GetParent() == nullptr) segment.SetIsRoot(true);
    most = std::max(most, segment.GetNumFrames());
  }
  document.SetNumFrames(static_cast<std::uint32_t>(most));
}

std::size_t FramesThatCount(const TRCDocument& document) {
  std::size_t count = 0;
  for (const TRCMarker& marker : document.markers()) count = std::max(count, marker.SampleCount());
  const auto announced = static_cast<std::size_t>(std::max(document.NumFrames(), 0));
  if (announced == 0) return count;
  while (count > announced && !IsAnySeen(document, count - 1)) --count;
  return count;
}

}  // namespace orvane
