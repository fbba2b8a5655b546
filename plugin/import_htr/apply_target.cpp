#include "plugin/import_htr/apply_target.h"

#include <algorithm>
#include <iterator>

#include "plugin/skeleton/bone.h"

namespace orvane {
namespace {

bool IsCharacterNode(INode& node) {
  Control* transform = node.GetTMController();
  if (transform == nullptr) return false;
  const ClassId class_id = transform->ClassID();
  return std::find(std::begin(kCharacterTransformClasses), std::end(kCharacterTransformClasses),
                   class_id) != std::end(kCharacterTransformClasses);
}

bool AnyCharacterNodeSelected(Interface& interface) {
  const int count = interface.GetSelNodeCount();
  for (int i = 0; i < count; ++i) {
    INode* node = interface.GetSelNode(i);
    if (node != nullptr && IsCharacterNode(*node)) return true;
  }
  return false;
}

// Intended: a node without a bone among its children is taken as it is, and no name is looked at.
INode& FirstBoneChildOrSelf(INode& node) {
  const int count = node.NumberOfChildren();
  for (int i = 0; i < count; ++i) {
    INode* child = node.GetChildNode(i);
    if (child != nullptr && IsBone(*child)) return *child;
  }
  return node;
}

ApplyTarget Refuse(const char* message) { return {nullptr, nullptr, message}; }

}  // namespace

ApplyTarget FindApplyTarget(Interface& interface, HtrDocument& document) {
  INode* selected = interface.GetSelNodeCount() > 0 ? interface.GetSelNode(0) : nullptr;
  if (selected == nullptr) {
    return Refuse("Please select the root of a skeleton before applying animation.");
  }
  if (AnyCharacterNodeSelected(interface)) {
    return Refuse("You can't import .htr directly onto a biped node.");
  }
  if (!IsBone(*selected)) {
    return {&FirstBoneChildOrSelf(*selected), document.FindRootSegment(), {}};
  }
  HtrSegment* branch = document.FindSegment(selected->GetName());
  if (branch == nullptr) {
    return Refuse("Please select a branch to apply to that exists in the source HTR file.");
  }
  return {selected, branch, {}};
}

}  // namespace orvane
