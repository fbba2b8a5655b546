#include "web/desk/scene_places.h"

#include <algorithm>
#include <array>
#include <limits>

#include "cli/scene/scene_report.h"
#include "web/desk/node_look.h"

namespace web {
namespace {

constexpr float kNowhere = std::numeric_limits<float>::quiet_NaN();

}  // namespace

ScenePlaces::ScenePlaces(const host::Scene& scene) {
  for (const cli::SceneTreeEntry& entry : cli::ListScene(scene)) nodes.push_back(entry.node);
  const host::AnimationState& animation = scene.Animation();
  const int ticks = animation.TicksPerFrame();
  first_frame = animation.Range().Start() / ticks;
  const int last = std::max(animation.Range().End() / ticks, first_frame);
  frames = static_cast<std::size_t>(last - first_frame) + 1;
  positions.assign(kAxes * frames * nodes.size(), kNowhere);
  ends = positions;
  for (std::size_t index = 0; index < nodes.size(); ++index) Fill(animation, index);
}

void ScenePlaces::Fill(const host::AnimationState& animation, std::size_t index) {
  const host::Node& node = *nodes[index];
  const NodeLook look = LookOf(node);
  const auto length = static_cast<float>(look.size);
  for (std::size_t frame = 0; frame < frames; ++frame) {
    const TimeValue time = (first_frame + static_cast<int>(frame)) * animation.TicksPerFrame();
    if (node.Measurement() && node.Measurement()->IsMissing(time)) continue;
    const Matrix3 place = node.WorldTransform(time);
    const Point3& at = place.GetRow(3);
    const Point3& along = place.GetRow(0);
    float* const position = &positions[kAxes * (frame * nodes.size() + index)];
    float* const end = &ends[kAxes * (frame * nodes.size() + index)];
    const std::array<float, kAxes> from = {at.x, at.y, at.z};
    const std::array<float, kAxes> way = {along.x, along.y, along.z};
    for (std::size_t axis = 0; axis < kAxes; ++axis) {
      position[axis] = from[axis];
      if (look.kind == NodeKind::kBone) end[axis] = from[axis] + length * way[axis];
    }
  }
}

}  // namespace web
