#include "host/desktop/portable/keyed_registry.h"

#include <algorithm>
#include <cstring>
#include <utility>

// An open key is known by its full path.
struct platform::RegistryKey {
  std::string path;
};

namespace host {

using platform::RegistryKey;

KeyedRegistry::KeyedRegistry() = default;
KeyedRegistry::~KeyedRegistry() = default;

RegistryKey* KeyedRegistry::CreateKey(RegistryKey* parent, const char* path) {
  std::string full_path = path;
  if (parent != nullptr) {
    const std::string* const parent_path = PathOf(parent);
    if (parent_path == nullptr) return nullptr;
    full_path = *parent_path + '\\' + path;
  }
  if (!MakeKey(full_path)) return nullptr;
  auto key = std::make_unique<RegistryKey>(RegistryKey{std::move(full_path)});
  RegistryKey* const opened = key.get();
  open_.emplace(opened, std::move(key));
  return opened;
}

void KeyedRegistry::CloseKey(RegistryKey* key) { open_.erase(key); }

bool KeyedRegistry::QueryValue(RegistryKey* key, const char* name, void* data, std::size_t& size) {
  const std::string* const path = PathOf(key);
  if (path == nullptr) return false;
  const std::optional<RegistryValue> value = FindValue(*path, name);
  if (!value || value->bytes.size() > size) return false;
  size = value->bytes.size();
  if (size > 0) std::memcpy(data, value->bytes.data(), size);
  return true;
}

bool KeyedRegistry::SetValue(RegistryKey* key, const char* name, platform::RegistryType type,
                             const void* data, std::size_t size) {
  const std::string* const path = PathOf(key);
  if (path == nullptr) return false;
  std::string bytes(size, '\0');
  if (size > 0) std::memcpy(bytes.data(), data, size);
  return StoreValue(*path, name, {type, std::move(bytes)});
}

std::vector<std::string> KeyedRegistry::OpenKeys() const {
  std::vector<std::string> paths;
  for (const auto& [key, owned] : open_) paths.push_back(owned->path);
  std::sort(paths.begin(), paths.end());
  return paths;
}

const std::string* KeyedRegistry::PathOf(const RegistryKey* key) const {
  const auto found = open_.find(key);
  return found == open_.end() ? nullptr : &found->second->path;
}

}  // namespace host
