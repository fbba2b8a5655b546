#include "host/desktop/settings.h"

// The user of a page has no place for settings, so that nobody asks for more of them.

namespace host {

class UserSettings::Body {};

UserSettings::UserSettings() = default;

UserSettings::~UserSettings() = default;

std::string UserSettings::Place() { return ""; }

bool UserSettings::IsOpen() const { return false; }

std::optional<RegistryValue> UserSettings::FindValue(const std::string& /*path*/,
                                                     const std::string& /*name*/) const {
  return std::nullopt;
}

std::vector<std::string> UserSettings::OpenKeys() const { return {}; }

}  // namespace host
