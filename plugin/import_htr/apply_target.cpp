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
    // Intended: a node without a bone among its children is taken as it is, and no name is looked
    // at.
    INode* const bone = FirstBoneChild(*selected);
    return {bone == nullptr ? selected : bone, document.FindRootSegment(), {}};
  }
  HtrSegment* branch = document.FindSegment(selected->GetName());
  if (branch == nullptr) {
    return Refuse("Please select a branch to apply to that exists in the source HTR file.");
  }
  return {selected, branch, {}};
}

}  // namespace orvane
