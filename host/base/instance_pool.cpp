#include "host/base/instance_pool.h"

#include <string>

namespace host {

Instance::~Instance() = default;

void InstancePool::Discard(Instance* instance) {
  if (Remove(instance, "deleted")) delete instance;
}

bool InstancePool::Remove(Instance* instance, const char* purpose) {
  const auto found = instances_.find(instance);
  if (found == instances_.end()) {
    misuse_.Report("An object or controller that is not its caller's was " + std::string(purpose));
    return false;
  }
  static_cast<void>(found->second.release());
  instances_.erase(found);
  return true;
}

}  // namespace host
