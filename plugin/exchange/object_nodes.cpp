#include "plugin/exchange/object_nodes.h"

#include <cassert>
#include <utility>

#include "sdk/core/object.h"

namespace orvane {

INode* CreateNodeFor(Interface& interface, OwnedInstance<Object> object) {
  assert(object != nullptr);
  INode* const node = interface.CreateObjectNode(object.get());
  if (node != nullptr) (void)object.release();
  return node;
}

INode* CreateDummyNode(Interface& interface, float half_extent) {
  auto dummy = CreateOwned<DummyObject>(interface, kHelperSuperClass, kDummyClass);
  if (dummy == nullptr) return nullptr;
  dummy->SetBox(Box3(Point3(-half_extent, -half_extent, -half_extent),
                     Point3(half_extent, half_extent, half_extent)));
  return CreateNodeFor(interface, std::move(dummy));
}

}  // namespace orvane
