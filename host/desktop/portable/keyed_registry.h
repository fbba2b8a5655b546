#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "host/desktop/settings.h"
#include "platform/desktop.h"
#include "platform/export.h"
#include "platform/registry.h"

// What all our registries have in common: open keys, and the rules of reading and writing through
// them. Where values are kept is left to the registries themselves. Paths and names are compared
// byte by byte. A key that is not open, or belongs to another registry, is refused.

namespace host {

class SKELDER_API KeyedRegistry : public platform::Registry {
 public:
  KeyedRegistry(const KeyedRegistry&) = delete;
  KeyedRegistry& operator=(const KeyedRegistry&) = delete;

  platform::RegistryKey* CreateKey(platform::RegistryKey* parent, const char* path) final;
  void CloseKey(platform::RegistryKey* key) final;
  bool QueryValue(platform::RegistryKey* key, const char* name, void* data,
                  std::size_t& size) final;
  bool SetValue(platform::RegistryKey* key, const char* name, platform::RegistryType type,
                const void* data, std::size_t size) final;

  // The full paths of the keys that are open now, sorted; one entry for each time it was opened.
  [[nodiscard]] std::vector<std::string> OpenKeys() const;

  // The value `name` of the key with the full path `path` (components separated by backslashes),
  // for whoever looks at the registry from outside; nothing when there is none.
  [[nodiscard]] virtual std::optional<RegistryValue> FindValue(const std::string& path,
                                                               const std::string& name) = 0;

 protected:
  KeyedRegistry();
  ~KeyedRegistry();

 private:
  // Makes the key with the full path `path`. Returns false when it cannot be kept.
  [[nodiscard]] virtual bool MakeKey(const std::string& path) = 0;

  // Keeps `value` of a key that is open, replacing what was there. Returns false when it cannot be
  // kept.
  [[nodiscard]] virtual bool StoreValue(const std::string& path, const std::string& name,
                                        RegistryValue value) = 0;

  [[nodiscard]] const std::string* PathOf(const platform::RegistryKey* key) const;

  std::unordered_map<const platform::RegistryKey*, std::unique_ptr<platform::RegistryKey>> open_;
};

}  // namespace host
