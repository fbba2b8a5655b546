#include "platform/registry.h"

#include <cassert>

#include "platform/desktop.h"

namespace platform {

RegistryKey* CreateRegistryKey(RegistryKey* parent, const char* path) {
  assert(path != nullptr);
  Registry* const registry = CurrentRegistry();
  return registry == nullptr ? nullptr : registry->CreateKey(parent, path);
}

void CloseRegistryKey(RegistryKey* key) {
  Registry* const registry = CurrentRegistry();
  if (registry != nullptr) registry->CloseKey(key);
}

bool QueryRegistryValue(RegistryKey* key, const char* name, void* data, std::size_t& size) {
  assert(data != nullptr || size == 0);
  Registry* const registry = CurrentRegistry();
  return registry != nullptr && registry->QueryValue(key, name, data, size);
}

bool SetRegistryValue(RegistryKey* key, const char* name, RegistryType type, const void* data,
                      std::size_t size) {
  assert(data != nullptr || size == 0);
  Registry* const registry = CurrentRegistry();
  return registry != nullptr && registry->SetValue(key, name, type, data, size);
}

}  // namespace platform
