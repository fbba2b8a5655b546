#include "host/desktop/portable/memory_registry.h"

#include <utility>

namespace host {
namespace {

// The path of the key that `path` lies beneath; empty for a key beneath the root.
std::string ParentOf(const std::string& path) {
  const std::size_t separator = path.rfind('\\');
  return separator == std::string::npos ? std::string() : path.substr(0, separator);
}

}  // namespace

MemoryRegistry::MemoryRegistry() = default;
MemoryRegistry::~MemoryRegistry() = default;

bool MemoryRegistry::HasKey(const std::string& path) const { return keys_.count(path) > 0; }

void MemoryRegistry::RefuseKey(const std::string& path) { refused_.insert(path); }

bool MemoryRegistry::MakeKey(const std::string& path) {
  for (std::string key = path; !key.empty(); key = ParentOf(key)) {
    if (refused_.count(key) > 0) return false;
  }
  for (std::string key = path; !key.empty(); key = ParentOf(key)) keys_[key];
  return true;
}

std::optional<RegistryValue> MemoryRegistry::FindValue(const std::string& path,
                                                       const std::string& name) {
  const auto key = keys_.find(path);
  if (key == keys_.end()) return {};
  const auto value = key->second.find(name);
  if (value == key->second.end()) return {};
  return value->second;
}

bool MemoryRegistry::StoreValue(const std::string& path, const std::string& name,
                                RegistryValue value) {
  keys_[path].insert_or_assign(name, std::move(value));
  return true;
}

}  // namespace host
