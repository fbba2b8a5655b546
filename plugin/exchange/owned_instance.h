#pragma once

#include <memory>

#include "plugin/exchange/attempt.h"
#include "sdk/core/interface.h"

// Objects and controllers between their creation and their place in the scene.
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
OwnedInstance<Instance> CreateOwned(Interface& interface, SuperClassId super_class,
                                    ClassId class_id) {
  return OwnedInstance<Instance>(
      static_cast<Instance*>(interface.CreateInstance(super_class, class_id)));
}

}  // namespace orvane
