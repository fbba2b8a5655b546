#include "formats/bvh/segment_motion.h"

#include <cmath>

namespace orvane {
namespace {

template <typename Three>
bool IsFinite(const Three& three) {
  return std::isfinite(three[0]) && std::isfinite(three[1]) && std::isfinite(three[2]);
}

double Distance(const Vector3& left, const Vector3& right) {
  return std::hypot(left.x() - right.x(), left.y() - right.y(), left.z() - right.z());
}

}  // namespace

BvhSegmentMotion MeasureMotion(const HtrSegment& segment) {
  BvhSegmentMotion motion;
  const Vector3 first = HeldTranslation(segment, 0);
  const Vector3 base = segment.GetBaseTranslation();
  for (std::size_t frame = 0; frame < segment.GetNumFrames(); ++frame) {
    const Vector3 translation = segment.GetFramePosition(frame);
    motion.drift = std::max(motion.drift, Distance(translation, first));
    const double base_error = Distance(translation, base);
    if (base_error > motion.base_error) {
      motion.base_error = base_error;
      motion.base_error_frame = frame;
    }
    const double scale = segment.GetFrameScale(frame);
    if (scale == 1.0) continue;
    ++motion.scaled_frames;
    const bool is_farther = std::abs(scale - 1.0) > std::abs(motion.farthest_scale - 1.0);
    if (is_farther) motion.farthest_scale = scale;
  }
  return motion;
}

bool IsBaseFinite(const HtrSegment& segment) {
  return IsFinite(segment.GetBaseTranslation()) && IsFinite(segment.GetBaseRotation()) &&
         std::isfinite(segment.GetBoneLength());
}

std::optional<std::size_t> FindFrameNotFinite(const HtrSegment& segment) {
  for (std::size_t frame = 0; frame < segment.GetNumFrames(); ++frame) {
    const bool is_finite =
        IsFinite(segment.GetFramePosition(frame)) && IsFinite(segment.GetFrameRotation(frame));
    if (!is_finite) return frame;
  }
  return std::nullopt;
}

}  // namespace orvane
