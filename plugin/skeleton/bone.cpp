#include "plugin/skeleton/bone.h"

#include "sdk/core/object.h"

namespace orvane {

bool IsBone(INode& node) {
  Object* object = node.GetObjectReference();
  return object != nullptr && object->ClassID() == kBoneClass;
}

INode* FirstBoneChild(INode& node) {
  const int count = node.NumberOfChildren();
  for (int i = 0; i < count; ++i) {
    INode* child = node.GetChildNode(i);
    if (child != nullptr && IsBone(*child)) return child;
  }
  return nullptr;
}

}  // namespace orvane
