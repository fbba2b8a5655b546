#include "plugin/import_htr/motion_applier.h"

#include <vector>

#include "plugin/exchange/nodes_by_name.h"
#include "plugin/import_htr/segment_keyer.h"
#include "plugin/skeleton/bone.h"

namespace orvane {
namespace {

// The bones among the children of `node`.
NodesByName BoneChildren(INode& node) {
  NodesByName bones;
  const int count = node.NumberOfChildren();
  for (int i = 0; i < count; ++i) {
    INode* child = node.GetChildNode(i);
    if (child != nullptr && IsBone(*child)) bones.Add(*child);
  }
  return bones;
}

// A segment that is keyed, and whose children are being so.
struct OpenSegment {
  OpenSegment(INode& node, const HtrSegment& its_segment)
      : segment(its_segment), bones(BoneChildren(node)) {}

  const HtrSegment& segment;
  NodesByName bones;
  int next_child = 0;
};

}  // namespace

bool MotionApplier::Apply(INode& node, const HtrSegment& segment) {
  if (!KeySegment(node, segment)) return false;

  std::vector<OpenSegment> open;
  open.emplace_back(node, segment);
  while (!open.empty()) {
    OpenSegment& parent = open.back();
    const HtrSegment* child = parent.segment.GetChild(parent.next_child++);
    if (child == nullptr) {
      CountProcessed();
      open.pop_back();
      continue;
    }
    INode* bone = parent.bones.Find(child->GetName());
    if (bone == nullptr) continue;
    if (!KeySegment(*bone, *child)) return false;
    open.emplace_back(*bone, *child);
  }
  return true;
}

bool MotionApplier::KeySegment(INode& node, const HtrSegment& segment) {
  if (++visits_ > segment_budget_) return false;
  return SegmentKeyer(interface_, options_, times_, node, segment).Run();
}

void MotionApplier::CountProcessed() {
  ++processed_;
  interface_.ProgressUpdate(static_cast<int>(10 + 90 * processed_ / segment_count_));
}

}  // namespace orvane
