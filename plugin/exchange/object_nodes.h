#pragma once

#include <memory>

#include "plugin/exchange/attempt.h"
#include "sdk/core/interface.h"
#include "sdk/core/types.h"

// New objects and controllers on their way into the scene, and the nodes for them. All of it
// belongs to the scene afterwards.
namespace orvane {

struct InstanceDeleter {
  void operator()(ClassInstance* instance) const {
    Attempt([instance] { instance->Delete(); });
  }
};

// One that is deleted with this, unless it is released to the scene.
template <typename Instance>
using OwnedInstance = std::unique_ptr<Instance, InstanceDeleter>;

// Creates one; null when the host does not know the class. `Instance` is what the instances of
// `super_class` are, or of `class_id` alone.
template <typename Instance>
[[nodiscard]] OwnedInstance<Instance> CreateOwned(Interface& interface, SuperClassId super_class,
                                                  ClassId class_id) {
  return OwnedInstance<Instance>(
      static_cast<Instance*>(interface.CreateInstance(super_class, class_id)));
}

// Creates a node under the scene root for `object`. Returns null when the host cannot; `object` is
// deleted then.
// REQUIRES: `object` is not null.
[[nodiscard]] INode* CreateNodeFor(Interface& interface, OwnedInstance<Object> object);

// Creates a grouping helper under the scene root, a box from -half_extent to half_extent (system
// units) on every axis. Returns null when the host cannot create it.
[[nodiscard]] INode* CreateDummyNode(Interface& interface, float half_extent);

}  // namespace orvane
