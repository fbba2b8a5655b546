#include "python/binding/marker_take.h"

#include <algorithm>

namespace binding {
namespace {

using orvane::TRCDocument;
using orvane::TRCMarker;

// The samples from `begin` up to `end`, whose positions are those from `next` on.
const orvane::TRCPosition* CopyPositions(const orvane::TRCPosition* next, std::size_t begin,
                                         std::size_t end, std::size_t name, FrameArray& points) {
  for (std::size_t sample = begin; sample < end; ++sample, ++next) {
    double* const row = points.Row(sample, name);
    row[0] = next->x;
    row[1] = next->y;
    row[2] = next->z;
  }
  return next;
}

void CopyMarker(const TRCMarker& marker, std::size_t name, FrameArray& points) {
  const orvane::TRCPosition* next = marker.Positions().data();
  std::size_t begin = 0;
  for (const TRCMarker::Gap& gap : marker.Gaps()) {
    next = CopyPositions(next, begin, gap.begin, name, points);
    begin = gap.end;
  }
  CopyPositions(next, begin, marker.SampleCount(), name, points);
}

FrameArray PointsOf(const TRCDocument& document) {
  constexpr std::size_t kCoordinates = 3;
  FrameArray points(FrameCountOf(document), document.MarkerCount(), kCoordinates);
  for (std::size_t name = 0; name < document.MarkerCount(); ++name) {
    CopyMarker(*document.MarkerAt(name), name, points);
  }
  return points;
}

}  // namespace

const FrameArray& MarkerTake::Points() const {
  std::call_once(made_, [this] { points_.emplace(PointsOf(document_)); });
  return *points_;
}

std::size_t FrameCountOf(const TRCDocument& document) {
  std::size_t frames = 0;
  for (const TRCMarker& marker : document.markers()) {
    frames = std::max(frames, marker.SampleCount());
  }
  return frames;
}

}  // namespace binding
