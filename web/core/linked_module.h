#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "host/desktop/portable/installed_registry.h"
#include "host/desktop/portable/memory_registry.h"
#include "host/desktop/settings.h"

// The settings of the plug-in that is linked in. They are in use as long as the process, and nobody
// else's may be while the plug-in is to find them.

namespace web {

class LinkedSettings final : public host::Settings {
 public:
  LinkedSettings() = default;

  [[nodiscard]] std::optional<host::RegistryValue> FindValue(
      const std::string& path, const std::string& name) const override {
    return registry_.FindValue(path, name);
  }
  [[nodiscard]] std::vector<std::string> OpenKeys() const override { return registry_.OpenKeys(); }

  host::MemoryRegistry& Registry() { return registry_; }

 private:
  mutable host::MemoryRegistry registry_;
  host::InstalledRegistry installed_{registry_};
};

// Those of this process.
[[nodiscard]] LinkedSettings& SettingsOfModule();

}  // namespace web
