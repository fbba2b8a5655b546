#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/export.h"
#include "platform/registry.h"

// The settings that a plug-in finds and leaves: the registry of the current user, as far as a
// module loaded here can tell. Settings are in use from their construction to their destruction;
// then those that were in use before are again. Have them in use before a module is loaded, because
// option records open their keys meanwhile. They are destroyed in reverse order.
//
// Keys are named by their full path beneath the root of the current user, with backslashes between
// components.

namespace host {

struct RegistryValue {
  platform::RegistryType type = platform::RegistryType::kBinary;
  std::string bytes;
};

class SKELDER_API Settings {
 public:
  Settings(const Settings&) = delete;
  Settings& operator=(const Settings&) = delete;

  // The value `name` of the key `path`; nothing when there is none.
  [[nodiscard]] virtual std::optional<RegistryValue> FindValue(const std::string& path,
                                                               const std::string& name) const = 0;

  // The keys that modules have open now, sorted; one entry for each time a key was opened.
  [[nodiscard]] virtual std::vector<std::string> OpenKeys() const = 0;

 protected:
  Settings();
  ~Settings();
};

// Settings of somebody who has never chosen anything, gone without a trace when they are destroyed.
class SKELDER_API FreshSettings final : public Settings {
 public:
  FreshSettings();
  ~FreshSettings();

  [[nodiscard]] std::optional<RegistryValue> FindValue(const std::string& path,
                                                       const std::string& name) const override;
  [[nodiscard]] std::vector<std::string> OpenKeys() const override;

  // Whether the key `path` exists.
  [[nodiscard]] bool HasKey(const std::string& path) const;

  // Stores `value`, as another program would; makes the key `path` when it is missing.
  void StoreValue(const std::string& path, const std::string& name, const RegistryValue& value);

  // From now on the key `path`, and what lies beneath it, cannot be opened.
  void RefuseKey(const std::string& path);

 private:
  class Body;

  std::unique_ptr<Body> body_;
};

// The settings of the user who runs this program, which outlive it.
class SKELDER_API UserSettings final : public Settings {
 public:
  UserSettings();
  ~UserSettings();

  // Where they are kept, for a message to the user; empty when this user has no place for settings.
  [[nodiscard]] static std::string Place();

  // Whether they can be read and written.
  [[nodiscard]] bool IsOpen() const;

  [[nodiscard]] std::optional<RegistryValue> FindValue(const std::string& path,
                                                       const std::string& name) const override;
  [[nodiscard]] std::vector<std::string> OpenKeys() const override;

 private:
  class Body;

  std::unique_ptr<Body> body_;
};

}  // namespace host
