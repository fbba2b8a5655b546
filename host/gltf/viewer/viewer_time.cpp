#include "host/gltf/viewer/viewer_time.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace host::gltf {

namespace {

constexpr TimeValue kNoKey = std::numeric_limits<TimeValue>::max();

TimeValue FirstTick(const Controller& controller) {
  return controller.KeyCount() == 0 ? kNoKey : controller.KeyTick(0);
}

// The tick of the earliest key of all, or kNoKey, at which there may be one as well.
TimeValue EarliestTick(const NodeTree& tree) {
  TimeValue earliest = kNoKey;
  for (const PlacedNode& placed : tree) {
    const TransformController& transform = *placed.node->Transform();
    earliest = std::min({earliest, FirstTick(transform.Position()), FirstTick(transform.Rotation()),
                         FirstTick(transform.Scale())});
  }
  return earliest;
}

}  // namespace

ViewerTime::ViewerTime(const Scene& scene, const NodeTree& tree) : start_(EarliestTick(tree)) {
  if (!scene.Recording() || !scene.Recording()->rate) return;
  frame_ticks_ = scene.Animation().TicksPerFrame();
  rate_ = *scene.Recording()->rate;
}

float ViewerTime::Second(TimeValue tick) const {
  const double frames = static_cast<double>(std::int64_t{tick} - start_) / frame_ticks_;
  return static_cast<float>(frames * static_cast<double>(rate_.denominator) /
                            static_cast<double>(rate_.numerator));
}

}  // namespace host::gltf
