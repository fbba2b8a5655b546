#include "inspect/report/apply_plan.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace orvane {
namespace {

using Indices = std::vector<std::size_t>;
using Start = ApplyPlan::Start;

std::vector<Indices> ChildrenOf(const std::vector<ApplyItem>& items) {
  std::vector<Indices> children(items.size());
  for (std::size_t index = 0; index < items.size(); ++index) {
    if (items[index].parent != kNoParent) children[items[index].parent].push_back(index);
  }
  return children;
}

bool IsEffector(const ApplyItem& node) { return node.name.find("Effector") != std::string::npos; }

// Pairs segments with bones, from the start on down.
class MotionPlan {
 public:
  MotionPlan(const AppliedFile& file, const ApplyScene& scene)
      : file_(file),
        scene_(scene),
        segments_below_(ChildrenOf(file.items)),
        nodes_below_(ChildrenOf(scene.nodes)),
        seen_(file.items.size()) {
    for (const ApplyItem& segment : file.items) names_.insert(segment.name);
  }

  ApplyPlan Make() {
    const ApplyPair first = FindStart();
    if (plan_.start != Start::kFound) return std::move(plan_);
    if (first.item == kNoParent) return std::move(plan_);  // a file without a root
    Indices waiting = {Pair(first)};
    while (!waiting.empty()) {
      const ApplyPair parent = plan_.pairs[waiting.back()];
      waiting.pop_back();
      PairChildren(parent, waiting);
    }
    SortByFile();
    if (first.item != file_.root) FindRest();
    return std::move(plan_);
  }

 private:
  bool IsBone(std::size_t node) const { return scene_.nodes[node].shape.has_value(); }

  ApplyPair FindStart() {
    if (scene_.selected.empty()) {
      plan_.start = Start::kNothingSelected;
      return {};
    }
    const std::size_t selected = scene_.selected.front();
    if (IsBone(selected)) return {Segment(scene_.nodes[selected].name), selected};
    for (const std::size_t child : nodes_below_[selected]) {
      if (IsBone(child)) return {file_.root, child};
    }
    return {file_.root, selected};
  }

  std::size_t Segment(std::string_view name) {
    for (std::size_t index = 0; index < file_.items.size(); ++index) {
      if (file_.items[index].name == name) return index;
    }
    plan_.start = Start::kNameUnknown;
    return kNoParent;
  }

  std::size_t Pair(const ApplyPair& pair) {
    seen_[pair.item] = true;
    plan_.pairs.push_back(pair);
    return plan_.pairs.size() - 1;
  }

  void PairChildren(const ApplyPair& parent, Indices& waiting) {
    std::unordered_map<std::string_view, std::size_t> bones;  // of several of one name the first
    for (const std::size_t node : nodes_below_[parent.node]) {
      if (IsBone(node)) bones.emplace(scene_.nodes[node].name, node);
    }
    for (const std::size_t segment : segments_below_[parent.item]) {
      const auto bone = bones.find(file_.items[segment].name);
      if (bone == bones.end()) {
        MissBranch(segment);
      } else if (!seen_[segment]) {
        waiting.push_back(Pair({segment, bone->second}));
        bones.erase(bone);
      }
    }
    for (const std::size_t node : nodes_below_[parent.node]) {
      const auto left = bones.find(scene_.nodes[node].name);
      if (left != bones.end() && left->second == node) LeaveBranch(node);
    }
  }

  // Behind the first, which is where the user has the motion start.
  void SortByFile() {
    std::sort(plan_.pairs.begin() + 1, plan_.pairs.end(),
              [](const ApplyPair& left, const ApplyPair& right) { return left.item < right.item; });
    std::sort(plan_.file_only.begin(), plan_.file_only.end());
    std::sort(plan_.scene_only.begin(), plan_.scene_only.end());
  }

  void FindRest() {
    for (std::size_t item = 0; item < seen_.size(); ++item) {
      if (!seen_[item]) plan_.not_below_start.push_back(item);
    }
  }

  // Segments may be their own ancestors.
  void MissBranch(std::size_t segment) {
    Indices waiting = {segment};
    while (!waiting.empty()) {
      const std::size_t next = waiting.back();
      waiting.pop_back();
      if (seen_[next]) continue;
      seen_[next] = true;
      plan_.file_only.push_back(next);
      waiting.insert(waiting.end(), segments_below_[next].rbegin(), segments_below_[next].rend());
    }
  }

  void LeaveBranch(std::size_t node) {
    Indices waiting = {node};
    while (!waiting.empty()) {
      const std::size_t next = waiting.back();
      waiting.pop_back();
      if (!IsBone(next)) continue;
      const ApplyItem& bone = scene_.nodes[next];
      if (!IsEffector(bone) && names_.count(bone.name) == 0) plan_.scene_only.push_back(next);
      waiting.insert(waiting.end(), nodes_below_[next].rbegin(), nodes_below_[next].rend());
    }
  }

  const AppliedFile& file_;
  const ApplyScene& scene_;
  const std::vector<Indices> segments_below_;
  const std::vector<Indices> nodes_below_;
  std::unordered_set<std::string_view> names_;  // of all segments
  std::vector<bool> seen_;                      // segments
  ApplyPlan plan_;
};

}  // namespace

ApplyPlan PlanMotion(const AppliedFile& file, const ApplyScene& scene) {
  return MotionPlan(file, scene).Make();
}

ApplyPlan PlanMarkers(const AppliedFile& file, const ApplyScene& scene) {
  ApplyPlan plan;
  if (scene.selected.empty()) plan.start = Start::kNothingSelected;
  const std::vector<Indices> nodes_below = ChildrenOf(scene.nodes);
  Indices candidates;
  for (const std::size_t node : scene.selected) {
    candidates.push_back(node);
    candidates.insert(candidates.end(), nodes_below[node].begin(), nodes_below[node].end());
  }
  std::unordered_map<std::string_view, std::size_t> by_name;  // of several of one name the first
  for (const std::size_t node : candidates) by_name.emplace(scene.nodes[node].name, node);
  std::vector<bool> keyed(scene.nodes.size());
  for (std::size_t item = 0; item < file.items.size(); ++item) {
    const auto node = by_name.find(file.items[item].name);
    if (node == by_name.end()) {
      plan.file_only.push_back(item);
      continue;
    }
    plan.pairs.push_back({item, node->second});
    keyed[node->second] = true;
  }
  for (const std::size_t node : candidates) {
    if (keyed[node] || !nodes_below[node].empty()) continue;
    keyed[node] = true;  // told once
    plan.scene_only.push_back(node);
  }
  return plan;
}

}  // namespace orvane
