#pragma once

#include <cstddef>

namespace orvane {

// All frames of a motion document as an array of segments by frames by seven numbers: translation
// x, y, z, angles x, y, z in radians under the frame's Euler order, and scale, as HtrSegment stores
// them. It owns nothing: the numbers are those of the document, lengths in its calibration unit,
// and change with them. Segments and frames count from 0; strides are in numbers.
struct HtrFramesView {
  // The numbers of frame f of segment s begin at numbers[s * segment_stride + f * frame_stride].
  // All seven are NaN at and behind the segment's GetNumFrames. Null when there are no frames.
  const double* numbers = nullptr;
  std::size_t segments = 0;
  std::size_t frames = 0;  // of the segment that has most
  std::size_t segment_stride = 0;
  std::size_t frame_stride = 0;
};

}  // namespace orvane
