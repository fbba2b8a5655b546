#include "plugin/export_htr/skeleton_sampler.h"

#include <string_view>
#include <vector>

#include "plugin/export_htr/segment_sampler.h"
#include "plugin/skeleton/bone.h"

namespace orvane {
namespace {

// A bone whose children are being sampled.
struct OpenBone {
  INode* node;
  HtrSegment* segment;
  int next_child;
};

// Case counts.
bool IsEffector(std::string_view name) { return name.find("Effector") != std::string_view::npos; }

}  // namespace

// With a list of its own, since a scene may chain bones deeper than the program's stack reaches.
bool SkeletonSampler::Sample(INode& root) {
  const Sampled sampled_root = SampleBone(root, nullptr);
  if (sampled_root.segment == nullptr) return !sampled_root.refused;

  std::vector<OpenBone> open{{&root, sampled_root.segment, 0}};
  while (!open.empty()) {
    OpenBone& bone = open.back();
    if (bone.next_child >= bone.node->NumberOfChildren()) {
      open.pop_back();
      continue;
    }
    INode* child = bone.node->GetChildNode(bone.next_child++);
    if (child == nullptr || !IsBone(*child)) continue;
    // Intended: a child that is refused is missing from the file, and the export goes on.
    const Sampled sampled = SampleBone(*child, bone.segment);
    if (sampled.segment != nullptr) open.push_back({child, sampled.segment, 0});
  }
  return true;
}

SkeletonSampler::Sampled SkeletonSampler::SampleBone(INode& node, HtrSegment* parent) {
  if (IsEffector(node.GetName())) return {};
  SegmentSampler sampler(interface_, options_, messages_, document_, node, parent);
  HtrSegment* segment = document_.AddSegment(sampler.Sample());
  if (segment == nullptr) {
    messages_.Report("There are multiple identical names or spaces in a bone name.",
                     "ExportHTR Error");
    return {nullptr, true};
  }
  if (parent != nullptr) segment->SetParent(parent);
  CountProcessed();
  return {segment, false};
}

// Intended: the segments are counted as they come, so the bar stands at 90 from the first on.
void SkeletonSampler::CountProcessed() {
  ++processed_;
  const float share =
      static_cast<float>(processed_) / static_cast<float>(document_.GetNumSegments());
  interface_.ProgressUpdate(static_cast<int>(share * 90.0F));
}

}  // namespace orvane
