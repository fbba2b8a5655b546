#include "plugin/skeleton/bone.h"

#include "sdk/core/object.h"

namespace orvane {

bool IsBone(INode& node) {
  Object* object = node.GetObjectReference();
  return object != nullptr && object->ClassID() == kBoneClass;
}

}  // namespace orvane
