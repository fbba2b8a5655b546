#include "plugin/import_htr/bone_children.h"

#include "plugin/skeleton/bone.h"

namespace orvane {

BoneChildren::BoneChildren(INode& node) {
  const int count = node.NumberOfChildren();
  for (int i = 0; i < count; ++i) {
    INode* child = node.GetChildNode(i);
    // The first of several children of one name stays.
    if (child != nullptr && IsBone(*child)) by_name_.emplace(child->GetName(), child);
  }
}

INode* BoneChildren::Find(const std::string& name) const {
  const auto found = by_name_.find(name);
  return found == by_name_.end() ? nullptr : found->second;
}

}  // namespace orvane
