#include "cli/import/key_counts.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace cli {
namespace {

template <typename Visit>
void VisitNodes(const host::Scene& scene, const Visit& visit) {
  std::vector<const host::Node*> waiting = {&scene.Root()};
  while (!waiting.empty()) {
    const host::Node* node = waiting.back();
    waiting.pop_back();
    if (!node->IsRoot()) visit(*node);
    waiting.insert(waiting.end(), node->Children().begin(), node->Children().end());
  }
}

void Include(const host::Controller& controller, SceneKeys& keys) {
  const std::size_t count = controller.KeyCount();
  if (count == 0) return;
  keys.count += count;
  keys.first = std::min(keys.first, controller.KeyTick(0));
  keys.last = std::max(keys.last, controller.KeyTick(count - 1));
}

void IncludeAll(const host::Node& node, SceneKeys& keys) {
  const host::TransformController* const transform = node.Transform();
  if (transform == nullptr) return;
  Include(transform->Position(), keys);
  Include(transform->Rotation(), keys);
  Include(transform->Scale(), keys);
}

struct TickSpan {
  std::int64_t first = 0;
  std::int64_t last = -1;
};

std::size_t CountIn(const host::Controller& controller, const TickSpan& span) {
  std::size_t count = 0;
  for (std::size_t key = 0; key < controller.KeyCount(); ++key) {
    const std::int64_t tick = controller.KeyTick(key);
    if (span.first <= tick && tick <= span.last) ++count;
  }
  return count;
}

// From the first to the last tick that the import sets keys at. The base position is keyed a frame
// before the motion, and at the current time without any.
TickSpan TicksOf(const ImportChoices& choices, const orvane::FrameSpan& keyed,
                 const host::AnimationState& animation) {
  if (!choices.animation) {
    return choices.base_position ? TickSpan{animation.Time(), animation.Time()} : TickSpan{};
  }
  const std::int64_t ticks = animation.TicksPerFrame();
  const std::int64_t first = keyed.first + choices.offset - (choices.base_position ? 1 : 0);
  return {first * ticks, (keyed.last + choices.offset) * ticks};
}

}  // namespace

SceneKeys KeysIn(const host::Scene& scene) {
  SceneKeys keys;
  VisitNodes(scene, [&keys](const host::Node& node) { IncludeAll(node, keys); });
  return keys;
}

SetKeys::SetKeys(const host::Scene& scene) : scene_(scene) {
  VisitNodes(scene, [this](const host::Node& node) { newest_ = std::max(newest_, node.Handle()); });
}

void SetKeys::Expect(std::vector<const host::Node*> nodes, bool with_rotations) {
  std::sort(nodes.begin(), nodes.end());
  nodes.erase(std::unique(nodes.begin(), nodes.end()), nodes.end());
  nodes_ = std::move(nodes);
  with_rotations_ = with_rotations;
}

std::size_t SetKeys::Count(const ImportChoices& choices, const orvane::FrameSpan& keyed) const {
  SceneKeys of_new_nodes;
  VisitNodes(scene_, [&](const host::Node& node) {
    if (node.Handle() > newest_) IncludeAll(node, of_new_nodes);
  });
  const TickSpan span = TicksOf(choices, keyed, scene_.Animation());
  std::size_t count = of_new_nodes.count;
  for (const host::Node* node : nodes_) {
    count += CountIn(node->Transform()->Position(), span);
    if (with_rotations_) count += CountIn(node->Transform()->Rotation(), span);
  }
  return count;
}

}  // namespace cli
