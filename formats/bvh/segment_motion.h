#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>

#include "formats/htr/segment.h"
#include "formats/math/rotation_matrix3.h"

// The motion of one segment against its parent, in frames that it lacks too. Belongs to the writer.
namespace orvane {

// Base and frame put together. Behind its frames a segment stays as it is in the last one, and
// without frames in its base position.
[[nodiscard]] inline Vector3 HeldTranslation(const HtrSegment& segment, std::size_t frame) {
  const std::size_t count = segment.GetNumFrames();
  if (count == 0) return segment.GetBaseTranslation();
  return segment.GetFramePosition(std::min(frame, count - 1));
}

// `base` is the segment's base rotation.
[[nodiscard]] inline RotationMatrix3 HeldRotation(const HtrSegment& segment,
                                                  const RotationMatrix3& base, std::size_t frame) {
  const std::size_t count = segment.GetNumFrames();
  if (count == 0) return base;
  return base * RotationMatrix3(segment.GetFrameRotation(std::min(frame, count - 1)));
}

struct BvhSegmentMotion {
  double drift = 0.0;       // how far the translation gets from that of the first frame
  double base_error = 0.0;  // and from the base translation
  std::size_t base_error_frame = 0;
  std::size_t scaled_frames = 0;  // with a scale other than 1
  double farthest_scale = 1.0;
};

// All frames of the segment.
[[nodiscard]] BvhSegmentMotion MeasureMotion(const HtrSegment& segment);

[[nodiscard]] bool IsBaseFinite(const HtrSegment& segment);

// The first frame that holds a number that is none or infinite, or comes to one with the base.
[[nodiscard]] std::optional<std::size_t> FindFrameNotFinite(const HtrSegment& segment);

}  // namespace orvane
