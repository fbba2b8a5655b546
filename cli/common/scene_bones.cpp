#include "cli/common/scene_bones.h"

#include <algorithm>

#include "host/scene/bone_object.h"

namespace cli {

bool IsBone(const host::Node& node) {
  return dynamic_cast<const host::BoneObject*>(node.ShownObject()) != nullptr;
}

const host::Node* FirstBoneChild(const host::Node& node) {
  const auto& children = node.Children();
  const auto bone = std::find_if(children.begin(), children.end(),
                                 [](const host::Node* child) { return IsBone(*child); });
  return bone == children.end() ? nullptr : *bone;
}

}  // namespace cli
