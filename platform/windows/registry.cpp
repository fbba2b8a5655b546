#include "platform/registry.h"

#include <windows.h>

#include <cassert>
#include <cstring>
#include <vector>

namespace platform {
namespace {

HKEY HandleOf(RegistryKey* key) { return reinterpret_cast<HKEY>(key); }

}  // namespace

RegistryKey* CreateRegistryKey(RegistryKey* parent, const char* path) {
  assert(path != nullptr);
  char no_class[] = "";
  HKEY key = nullptr;
  const LSTATUS status =
      RegCreateKeyExA(parent == nullptr ? HKEY_CURRENT_USER : HandleOf(parent), path, 0, no_class,
                      0, KEY_ALL_ACCESS, nullptr, &key, nullptr);
  return status == ERROR_SUCCESS ? reinterpret_cast<RegistryKey*>(key) : nullptr;
}

void CloseRegistryKey(RegistryKey* key) {
  if (key != nullptr) RegCloseKey(HandleOf(key));
}

bool QueryRegistryValue(RegistryKey* key, const char* name, void* data, std::size_t& size) {
  assert(data != nullptr || size == 0);
  // What the system leaves in the buffer when a value does not fit is undefined.
  std::vector<BYTE> bytes(size);
  auto count = static_cast<DWORD>(size);
  const LSTATUS status =
      RegQueryValueExA(HandleOf(key), name, nullptr, nullptr, bytes.data(), &count);
  if (status != ERROR_SUCCESS) return false;
  std::memcpy(data, bytes.data(), count);
  size = count;
  return true;
}

bool SetRegistryValue(RegistryKey* key, const char* name, RegistryType type, const void* data,
                      std::size_t size) {
  assert(data != nullptr || size == 0);
  return RegSetValueExA(HandleOf(key), name, 0, static_cast<DWORD>(type),
                        static_cast<const BYTE*>(data), static_cast<DWORD>(size)) == ERROR_SUCCESS;
}

}  // namespace platform
