#include "formats/edit/resampling.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstddef>

#include "formats/edit/document_copies.h"
#include "formats/edit/rotation_path.h"

namespace orvane {
namespace {

// Where a new frame lies: `share` of the way from the old frame `before` to the one behind it.
struct Place {
  std::size_t before = 0;
  double share = 0.0;
};

Place PlaceOf(std::size_t frame, const FrameStep& step) {
  const std::int64_t parts = static_cast<std::int64_t>(frame) * step.numerator;
  return {static_cast<std::size_t>(parts / step.denominator),
          static_cast<double>(parts % step.denominator) / static_cast<double>(step.denominator)};
}

// How many new frames fit into `count` old ones.
std::size_t CountIn(std::size_t count, const FrameStep& step) {
  assert(step.numerator > 0 && step.denominator > 0);
  if (count == 0) return 0;
  const auto last = static_cast<std::int64_t>(count) - 1;
  return static_cast<std::size_t>(last * step.denominator / step.numerator) + 1;
}

Vector3 VectorBetween(const Vector3& from, const Vector3& to, double share) {
  return Vector3(Between(from.x(), to.x(), share), Between(from.y(), to.y(), share),
                 Between(from.z(), to.z(), share));
}

void Resample(const HtrSegment& source, const FrameStep& step, RotationPath path,
              HtrSegment& target) {
  const std::size_t count = CountIn(source.GetNumFrames(), step);
  target.ReserveFrames(count);
  for (std::size_t frame = 0; frame < count; ++frame) {
    const auto [before, share] = PlaceOf(frame, step);
    if (share == 0.0) {
      AppendFrames(source, before, before + 1, target);
      continue;
    }
    target.AddFrame(
        VectorBetween(source.GetFrameTranslation(before), source.GetFrameTranslation(before + 1),
                      share),
        Between(source.GetFrameRotation(before), source.GetFrameRotation(before + 1), share, path),
        Between(source.GetFrameScale(before), source.GetFrameScale(before + 1), share));
  }
}

void Resample(const TRCMarker& source, const FrameStep& step, TRCMarker& target) {
  const std::size_t count = CountIn(source.SampleCount(), step);
  for (std::size_t frame = 0; frame < count; ++frame) {
    const auto [before, share] = PlaceOf(frame, step);
    if (share == 0.0) {
      AppendFrames(source, before, before + 1, target);
      continue;
    }
    std::array<double, 3> from{};
    std::array<double, 3> to{};
    const bool is_seen = source.GetSample(before, from[0], from[1], from[2]) &&
                         source.GetSample(before + 1, to[0], to[1], to[2]);
    if (is_seen) {
      target.AppendPosition(Between(from[0], to[0], share), Between(from[1], to[1], share),
                            Between(from[2], to[2], share));
    } else {
      target.AppendDropout();
    }
  }
}

}  // namespace

void Resample(const HtrDocument& source, const FrameStep& step, RotationPath path,
              HtrDocument& target) {
  CopyWithoutFrames(source, AllOf(source), target);
  std::size_t most = 0;
  auto copy = target.segments().begin();
  for (const HtrSegment& segment : source.segments()) {
    Resample(segment, step, path, *copy);
    most = std::max(most, copy->GetNumFrames());
    ++copy;
  }
  target.SetNumFrames(static_cast<std::uint32_t>(most));
}

void Resample(const TRCDocument& source, const FrameStep& step, TRCDocument& target) {
  CopyWithoutFrames(source, AllOf(source), target);
  std::size_t most = 0;
  auto copy = target.markers().begin();
  for (const TRCMarker& marker : source.markers()) {
    Resample(marker, step, *copy);
    most = std::max(most, copy->SampleCount());
    ++copy;
  }
  target.SetNumFrames(static_cast<std::int32_t>(most));
}

}  // namespace orvane
