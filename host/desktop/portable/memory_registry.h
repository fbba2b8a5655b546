#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>

#include "host/desktop/portable/keyed_registry.h"
#include "platform/export.h"

// A registry that lives as long as the object: fresh settings for a run, and for tests.

namespace host {

class SKELDER_API MemoryRegistry final : public KeyedRegistry {
 public:
  MemoryRegistry();
  ~MemoryRegistry();

  // Whether the key with the full path `path` exists.
  [[nodiscard]] bool HasKey(const std::string& path) const;

  // The values of all keys, by the keys' full paths and by their own names.
  using Keys = std::map<std::string, std::map<std::string, RegistryValue>>;
  [[nodiscard]] const Keys& AllKeys() const { return keys_; }

  // From now on the key with the full path `path`, and what lies beneath it, cannot be opened.
  void RefuseKey(const std::string& path);

  [[nodiscard]] std::optional<RegistryValue> FindValue(const std::string& path,
                                                       const std::string& name) override;

 private:
  [[nodiscard]] bool MakeKey(const std::string& path) override;
  [[nodiscard]] bool StoreValue(const std::string& path, const std::string& name,
                                RegistryValue value) override;

  Keys keys_;
  std::set<std::string> refused_;
};

}  // namespace host
