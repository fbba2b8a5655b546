#include "tests/support/user_settings.h"

#include <filesystem>

namespace test {

NoUserSettings::NoUserSettings(const std::string& folder) : folder_(folder) {
  place_.emplace("XDG_CONFIG_HOME", folder);
}

NoUserSettings::~NoUserSettings() = default;

bool NoUserSettings::AreStored() const { return std::filesystem::exists(folder_); }

}  // namespace test
