#include "web/desk/scene_places.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>

#include "cli/scene/scene_report.h"
#include "web/desk/node_look.h"

namespace web {
namespace {

constexpr float kNowhere = std::numeric_limits<float>::quiet_NaN();

// Of all nodes in all frames. Each takes some microseconds and 24 bytes.
constexpr std::int64_t kMostPlaces = 2'000'000;

// Each how many frames have to be left out until those that stay are few enough.
int StepFor(std::int64_t frames, std::size_t nodes) {
  const std::int64_t places = frames * static_cast<std::int64_t>(nodes);
  return static_cast<int>((places + kMostPlaces - 1) / kMostPlaces);
}

}  // namespace

ScenePlaces::ScenePlaces(const host::Scene& scene) {
  for (const cli::SceneTreeEntry& entry : cli::ListScene(scene)) nodes.push_back(entry.node);
  const host::AnimationState& animation = scene.Animation();
  const int ticks = animation.TicksPerFrame();
  first_frame = animation.Range().Start() / ticks;
  const int last = std::max(animation.Range().End() / ticks, first_frame);
  step = std::max(StepFor(std::int64_t{last} - first_frame + 1, nodes.size()), 1);
  frames = static_cast<std::size_t>((last - first_frame) / step) + 1;
  positions.assign(kAxes * frames * nodes.size(), kNowhere);
  const bool has_bones = std::any_of(nodes.begin(), nodes.end(), [](const host::Node* node) {
    return LookOf(*node).kind == NodeKind::kBone;
  });
  if (has_bones) ends = positions;
  for (std::size_t index = 0; index < nodes.size(); ++index) Fill(animation, index);
}

void ScenePlaces::Fill(const host::AnimationState& animation, std::size_t index) {
  const host::Node& node = *nodes[index];
  const NodeLook look = LookOf(node);
  const auto length = static_cast<float>(look.size);
  for (std::size_t frame = 0; frame < frames; ++frame) {
    const TimeValue time =
        (first_frame + static_cast<int>(frame) * step) * animation.TicksPerFrame();
    if (node.Measurement() && node.Measurement()->IsMissing(time)) continue;
    const Matrix3 place = node.WorldTransform(time);
    const Point3& at = place.GetRow(3);
    const Point3& along = place.GetRow(0);
    float* const position = &positions[kAxes * (frame * nodes.size() + index)];
    const std::array<float, kAxes> from = {at.x, at.y, at.z};
    const std::array<float, kAxes> way = {along.x, along.y, along.z};
    std::copy(from.begin(), from.end(), position);
    if (look.kind != NodeKind::kBone) continue;
    float* const end = &ends[kAxes * (frame * nodes.size() + index)];
    for (std::size_t axis = 0; axis < kAxes; ++axis) end[axis] = from[axis] + length * way[axis];
  }
}

}  // namespace web
