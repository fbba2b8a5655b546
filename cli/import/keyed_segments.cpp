#include "cli/import/keyed_segments.h"

#include <string>
#include <unordered_map>
#include <vector>

#include "cli/common/scene_bones.h"

namespace cli {
namespace {

using orvane::HtrSegment;

// A hierarchy that is listed twice doubles at every level. Whoever counts this far has counted
// enough.
constexpr std::int64_t kMostRepetitions = 2'000'000;

// A segment, and the bone that it moves; null in a new skeleton.
struct KeyedSegment {
  const HtrSegment* segment = nullptr;
  const host::Node* bone = nullptr;
};

// The bones among the children of a node. Of several of one name the first counts.
std::unordered_map<std::string, const host::Node*> BonesByName(const host::Node& parent) {
  std::unordered_map<std::string, const host::Node*> bones;
  for (const host::Node* child : parent.Children()) {
    if (IsBone(*child)) bones.emplace(child->Name(), child);
  }
  return bones;
}

// Appends the children of `parent` that are keyed to `waiting`.
void AddChildren(const KeyedSegment& parent, std::vector<KeyedSegment>& waiting) {
  std::unordered_map<std::string, const host::Node*> bones;
  if (parent.bone != nullptr) bones = BonesByName(*parent.bone);
  for (int i = 0; i < parent.segment->GetNumChildren(); ++i) {
    const HtrSegment* child = parent.segment->GetChild(i);
    if (parent.bone == nullptr) {
      waiting.push_back({child, nullptr});
      continue;
    }
    const auto bone = bones.find(child->GetName());
    if (bone != bones.end()) waiting.push_back({child, bone->second});
  }
}

// Where the plug-in starts to apply motion.
KeyedSegment FindTarget(orvane::HtrDocument& document, const host::Scene& scene) {
  if (scene.Selection().empty()) return {};
  const host::Node* selected = scene.Selection().front();
  if (IsBone(*selected)) return {document.FindSegment(selected->Name()), selected};
  const host::Node* bone = FirstBoneChild(*selected);
  return {document.FindRootSegment(), bone == nullptr ? selected : bone};
}

}  // namespace

std::int64_t CountKeyedSegments(orvane::HtrDocument& document, bool apply,
                                const host::Scene& scene) {
  const KeyedSegment first =
      apply ? FindTarget(document, scene) : KeyedSegment{document.FindRootSegment(), nullptr};
  if (first.segment == nullptr) return 0;
  const std::int64_t most = document.GetNumSegments() + kMostRepetitions;
  std::int64_t count = 0;
  std::vector<KeyedSegment> waiting = {first};
  while (!waiting.empty() && count < most) {
    const KeyedSegment next = waiting.back();
    waiting.pop_back();
    ++count;
    AddChildren(next, waiting);
  }
  return count;
}

}  // namespace cli
