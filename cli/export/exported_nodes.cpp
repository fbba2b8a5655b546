#include "cli/export/exported_nodes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <utility>

#include "cli/common/scene_bones.h"

namespace cli {
namespace {

using orvane::ExportNode;

// Of scales, and of cosines: what single precision leaves of equal numbers and right angles.
constexpr float kSame = 1e-4F;

bool IsSame(float left, float right) {
  return std::abs(left - right) <= kSame * std::max(std::abs(left), std::abs(right));
}

bool IsSame(const Point3& left, const Point3& right) {
  return IsSame(left.x, right.x) && IsSame(left.y, right.y) && IsSame(left.z, right.z);
}

bool IsEven(const Point3& scale) { return IsSame(scale.x, scale.y) && IsSame(scale.x, scale.z); }

bool Changes(const host::ScaleController& scale) {
  for (std::size_t key = 1; key < scale.KeyCount(); ++key) {
    if (!IsSame(scale.KeyValue(key), scale.KeyValue(0))) return true;
  }
  return false;
}

bool IsUneven(const host::ScaleController& scale) {
  if (scale.KeyCount() == 0) return !IsEven(scale.Constant());
  for (std::size_t key = 0; key < scale.KeyCount(); ++key) {
    if (!IsEven(scale.KeyValue(key))) return true;
  }
  return false;
}

bool IsUneven(const host::Node& node) {
  return node.Transform() != nullptr && IsUneven(node.Transform()->Scale());
}

float Dot(const Point3& left, const Point3& right) {
  return left.x * right.x + left.y * right.y + left.z * right.z;
}

bool AreAtRightAngles(const Point3& left, const Point3& right) {
  return std::abs(Dot(left, right)) <= kSame * std::sqrt(Dot(left, left) * Dot(right, right));
}

bool IsSheared(const Matrix3& transform) {
  const Point3& x = transform.GetRow(0);
  const Point3& y = transform.GetRow(1);
  const Point3& z = transform.GetRow(2);
  return !AreAtRightAngles(x, y) || !AreAtRightAngles(y, z) || !AreAtRightAngles(z, x);
}

orvane::FrameSpan FramesOf(const host::AnimationState& animation, const ExportChoices& choices) {
  if (!choices.animation) return {};
  const int ticks = animation.TicksPerFrame();
  const orvane::FrameSpan all = {animation.Range().Start() / ticks,
                                 animation.Range().End() / ticks};
  return choices.range ? Overlap(*choices.range, all) : all;
}

// Null when no skeleton is selected.
const host::Node* RootOf(const host::Scene& scene) {
  if (scene.Selection().empty()) return nullptr;
  const host::Node* const selected = scene.Selection().front();
  return IsBone(*selected) ? selected : FirstBoneChild(*selected);
}

// From the first to the last key of nodes.
class KeySpan {
 public:
  void Include(const host::Node& node) {
    if (node.Transform() == nullptr) return;
    const host::TransformController& transform = *node.Transform();
    const std::array<const host::Controller*, 3> controllers = {
        &transform.Position(), &transform.Rotation(), &transform.Scale()};
    for (const host::Controller* controller : controllers) {
      const std::size_t count = controller->KeyCount();
      if (count == 0) continue;
      first_ = std::min<std::int64_t>(first_, controller->KeyTick(0));
      last_ = std::max<std::int64_t>(last_, controller->KeyTick(count - 1));
    }
  }

  // Nothing without a key. A frame that a key is in counts.
  std::optional<std::pair<std::int64_t, std::int64_t>> InFrames(int ticks) const {
    if (first_ > last_) return std::nullopt;
    return std::pair(first_ / ticks, (last_ + ticks - 1) / ticks);
  }

 private:
  std::int64_t first_ = INT64_MAX;
  std::int64_t last_ = INT64_MIN;
};

class Describing {
 public:
  Describing(const host::Scene& scene, const ExportChoices& choices, const host::Node& root)
      : animation_(scene.Animation()),
        ticks_(animation_.TicksPerFrame()),
        frames_(FramesOf(animation_, choices)),
        above_(choices.parent_transforms ? nullptr : root.Parent()) {
    bool is_uneven_above = false;
    for (const host::Node* node = root.Parent(); above_ == nullptr && node != nullptr;
         node = node->Parent()) {
      is_uneven_above = is_uneven_above || IsUneven(*node);
    }
    waiting_.push_back({&root, 0, is_uneven_above});
  }

  std::vector<ExportNode> Run() {
    while (!waiting_.empty()) {
      const Waiting next = waiting_.back();
      waiting_.pop_back();
      const std::size_t index = nodes_.size();
      nodes_.push_back(Describe(next));
      const bool is_uneven_above = next.is_uneven_above || nodes_.back().is_uneven;
      const auto& children = next.node->Children();
      for (auto child = children.rbegin(); child != children.rend(); ++child) {
        waiting_.push_back({*child, index, is_uneven_above});
      }
    }
    return std::move(nodes_);
  }

 private:
  struct Waiting {
    const host::Node* node;
    std::size_t parent;
    bool is_uneven_above;
  };

  ExportNode Describe(const Waiting& next) const {
    const host::ScaleController& scale = next.node->Transform()->Scale();
    ExportNode node{next.node->Name(), next.parent, IsBone(*next.node)};
    node.scale_changes = Changes(scale);
    node.is_uneven = IsUneven(scale);
    node.is_sheared = node.is_bone && next.is_uneven_above && IsShearedInAnyFrame(*next.node);
    return node;
  }

  bool IsShearedAt(const host::Node& node, TimeValue time) const {
    const Matrix3 world = node.WorldTransform(time);
    return IsSheared(above_ == nullptr ? world : world * Inverse(above_->WorldTransform(time)));
  }

  bool IsShearedInAnyFrame(const host::Node& node) const {
    if (IsShearedAt(node, animation_.Time())) return true;
    for (std::int64_t frame = frames_.first; frame <= frames_.last; ++frame) {
      if (IsShearedAt(node, static_cast<TimeValue>(frame * ticks_))) return true;
    }
    return false;
  }

  const host::AnimationState& animation_;
  const int ticks_;
  const orvane::FrameSpan frames_;
  const host::Node* const above_;  // what the root is relative to; null for the world
  std::vector<Waiting> waiting_;
  std::vector<ExportNode> nodes_;
};

}  // namespace

std::vector<ExportNode> DescribeExport(const host::Scene& scene, const ExportChoices& choices) {
  const host::Node* const root = RootOf(scene);
  if (root == nullptr) return {};
  return Describing(scene, choices, *root).Run();
}

std::optional<orvane::ExportFrames> DescribeFrames(const host::Scene& scene,
                                                   const ExportChoices& choices) {
  const host::Node* const root = RootOf(scene);
  const orvane::FrameSpan frames = FramesOf(scene.Animation(), choices);
  if (root == nullptr || frames.Count() == 0) return std::nullopt;
  KeySpan keys;
  for (const host::Node* node = root->Parent(); node != nullptr; node = node->Parent()) {
    keys.Include(*node);
  }
  std::vector<const host::Node*> waiting = {root};
  while (!waiting.empty()) {
    const host::Node* const node = waiting.back();
    waiting.pop_back();
    keys.Include(*node);
    waiting.insert(waiting.end(), node->Children().begin(), node->Children().end());
  }
  return orvane::ExportFrames{frames.first, frames.last,
                              keys.InFrames(scene.Animation().TicksPerFrame())};
}

}  // namespace cli
