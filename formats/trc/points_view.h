#pragma once

#include <cstddef>
#include <cstdint>

namespace orvane {

// All samples of a marker document as an array of frames by markers by x, y, z. It owns nothing:
// the numbers are those of the document, in its unit and axes, and change with them. Frames and
// markers count from 0; strides are in numbers.
struct TRCPointsView {
  // x of marker m in frame f is points[f * frame_stride + m * marker_stride], y and z stand behind
  // it. All three are NaN where TRCMarker::GetSample says that nothing is present. Null when there
  // are no frames or no markers.
  const double* points = nullptr;
  std::size_t frames = 0;
  std::size_t markers = 0;
  std::size_t frame_stride = 0;
  std::size_t marker_stride = 0;
  // Bit f * markers + m, the lowest of each word first, is 1 where a position was measured or set:
  // not where scaling has made a dropout present.
  const std::uint64_t* measured = nullptr;
};

}  // namespace orvane
