#pragma once

#include <string>

#include "host/desktop/memory_registry.h"

namespace test {

// Notes which values are asked for and written.
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
};

}  // namespace test
