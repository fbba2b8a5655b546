#pragma once

#include <cassert>
#include <cstddef>
#include <memory>
#include <unordered_map>

#include "host/base/misuse_log.h"
#include "platform/export.h"

// Keeps the objects and controllers that were created for a caller and that no node holds yet. A
// caller owns them only by word: the memory is the pool's, so that what a caller forgets is seen
// (Size) and freed with the pool.

namespace host {

// The host's own side of every object and controller.
class SKELDER_API Instance {
 public:
  virtual ~Instance();
};

class SKELDER_API InstancePool {
 public:
  // `misuse` must outlive the pool.
  explicit InstancePool(MisuseLog& misuse) : misuse_(misuse) {}

  InstancePool(const InstancePool&) = delete;
  InstancePool& operator=(const InstancePool&) = delete;

  // Keeps `instance` and returns a pointer that is valid until it is taken or discarded.
  // REQUIRES: `instance` is not null.
  template <typename Kind>
  Kind* Add(std::unique_ptr<Kind> instance) {
    assert(instance != nullptr);
    Kind* added = instance.get();
    instances_.emplace(added, std::move(instance));
    return added;
  }

  // Hands the ownership of `instance` over. Returns null, and notes a misuse, when the pool does
  // not hold it or when it is no `Kind`.
  template <typename Kind, typename Interface>
  [[nodiscard]] std::unique_ptr<Kind> Take(Interface* instance) {
    auto* wanted = dynamic_cast<Kind*>(instance);
    if (!Remove(wanted, "given to the scene")) return nullptr;
    return std::unique_ptr<Kind>(wanted);
  }

  // Destroys `instance`; notes a misuse when the pool does not hold it.
  void Discard(Instance* instance);

  // How many instances are created and neither given to the scene nor deleted.
  std::size_t Size() const { return instances_.size(); }

 private:
  // Gives up the ownership of `instance`; false and a misuse when it is null or not here.
  [[nodiscard]] bool Remove(Instance* instance, const char* purpose);

  MisuseLog& misuse_;
  std::unordered_map<Instance*, std::unique_ptr<Instance>> instances_;
};

}  // namespace host
