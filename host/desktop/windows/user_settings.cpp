#include <windows.h>

#include "host/desktop/settings.h"
#include "host/desktop/windows/registry_keys.h"

namespace host {

// Nothing stands between the module and the registry.
class UserSettings::Body {};

UserSettings::UserSettings() = default;
UserSettings::~UserSettings() = default;

std::string UserSettings::Place() { return "HKEY_CURRENT_USER"; }

bool UserSettings::IsOpen() const { return true; }

std::optional<RegistryValue> UserSettings::FindValue(const std::string& path,
                                                     const std::string& name) const {
  return ReadRegistryValue(HKEY_CURRENT_USER, path, name);
}

std::vector<std::string> UserSettings::OpenKeys() const { return OpenKeysBelow(HKEY_CURRENT_USER); }

}  // namespace host
