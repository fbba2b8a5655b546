#pragma once

#include <string>

#include "host/desktop/portable/installed_registry.h"
#include "host/desktop/portable/memory_registry.h"

namespace test {

// A registry that notes which values are asked for and written. In use until it is destroyed.
class JournalRegistry final : public platform::Registry {
 public:
  platform::RegistryKey* CreateKey(platform::RegistryKey* parent, const char* path) override {
    return target_.CreateKey(parent, path);
  }
  void CloseKey(platform::RegistryKey* key) override { target_.CloseKey(key); }
  bool QueryValue(platform::RegistryKey* key, const char* name, void* data,
                  std::size_t& size) override {
    journal += std::string("read ") + name + " " + std::to_string(size) + "\n";
    return target_.QueryValue(key, name, data, size);
  }
  bool SetValue(platform::RegistryKey* key, const char* name, platform::RegistryType type,
                const void* data, std::size_t size) override {
    journal += std::string("write ") + name + " " + std::to_string(size) + "\n";
    return target_.SetValue(key, name, type, data, size);
  }

  std::string journal;

 private:
  host::MemoryRegistry target_;
  host::InstalledRegistry installed_{*this};
};

}  // namespace test
