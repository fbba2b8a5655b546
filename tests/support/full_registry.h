#pragma once

#include <new>

#include "host/desktop/portable/installed_registry.h"
#include "host/desktop/portable/memory_registry.h"

namespace test {

// A registry that has no memory for what is written. In use until it is destroyed.
class FullRegistry final : public platform::Registry {
 public:
  platform::RegistryKey* CreateKey(platform::RegistryKey* parent, const char* path) override {
    return target_.CreateKey(parent, path);
  }
  void CloseKey(platform::RegistryKey* key) override { target_.CloseKey(key); }
  bool QueryValue(platform::RegistryKey* key, const char* name, void* data,
                  std::size_t& size) override {
    return target_.QueryValue(key, name, data, size);
  }
  bool SetValue(platform::RegistryKey* /*key*/, const char* /*name*/,
                platform::RegistryType /*type*/, const void* /*data*/,
                std::size_t /*size*/) override {
    ++refusals;
    throw std::bad_alloc();
  }

  int refusals = 0;

 private:
  host::MemoryRegistry target_;
  host::InstalledRegistry installed_{*this};
};

}  // namespace test
