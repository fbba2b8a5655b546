#include "plugin/exchange/object_nodes.h"

#include "sdk/core/object.h"

namespace orvane {

INode* CreateNodeFor(Interface& interface, Object& object) {
  INode* node = interface.CreateObjectNode(&object);
  if (node == nullptr) object.Delete();
  return node;
}

INode* CreateDummyNode(Interface& interface, float half_extent) {
  auto* dummy = static_cast<DummyObject*>(interface.CreateInstance(kHelperSuperClass, kDummyClass));
  if (dummy == nullptr) return nullptr;
  dummy->SetBox(Box3(Point3(-half_extent, -half_extent, -half_extent),
                     Point3(half_extent, half_extent, half_extent)));
  return CreateNodeFor(interface, *dummy);
}

}  // namespace orvane
