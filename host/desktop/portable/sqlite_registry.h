#pragma once

#include <memory>
#include <optional>
#include <string>

#include "host/desktop/portable/keyed_registry.h"
#include "platform/export.h"

// A registry in a file: the user's settings, which outlive a run. The file is an SQLite database,
// so that a crash in the middle of a write loses nothing. A file that cannot be made or written,
// that somebody else keeps locked or that is no database makes a registry without keys: none can
// be opened, and the plug-in goes on with its defaults.

namespace host {

class SKELDER_API SqliteRegistry final : public KeyedRegistry {
 public:
  // Uses the database `path` (UTF-8); makes it and its folder where they are missing.
  explicit SqliteRegistry(const std::string& path);
  ~SqliteRegistry();

  // Whether the database can be used; false for a registry without keys.
  bool IsOpen() const { return database_ != nullptr; }

  [[nodiscard]] std::optional<RegistryValue> FindValue(const std::string& path,
                                                       const std::string& name) override;

 private:
  struct Database;

  [[nodiscard]] bool MakeKey(const std::string& path) override;
  [[nodiscard]] bool StoreValue(const std::string& path, const std::string& name,
                                RegistryValue value) override;

  std::unique_ptr<Database> database_;
};

// The settings file of the current user: orvane/settings.sqlite in $XDG_CONFIG_HOME or ~/.config.
// Empty when the user has no such folder.
[[nodiscard]] SKELDER_API std::string UserSettingsPath();

}  // namespace host
