#include "host/desktop/portable/installed_registry.h"
#include "host/desktop/portable/sqlite_registry.h"
#include "host/desktop/settings.h"

namespace host {

class UserSettings::Body {
 public:
  SqliteRegistry registry{UserSettings::Place()};

 private:
  InstalledRegistry installed_{registry};
};

UserSettings::UserSettings() : body_(std::make_unique<Body>()) {}
UserSettings::~UserSettings() = default;

std::string UserSettings::Place() { return UserSettingsPath(); }

bool UserSettings::IsOpen() const { return body_->registry.IsOpen(); }

std::optional<RegistryValue> UserSettings::FindValue(const std::string& path,
                                                     const std::string& name) const {
  return body_->registry.FindValue(path, name);
}

std::vector<std::string> UserSettings::OpenKeys() const { return body_->registry.OpenKeys(); }

}  // namespace host
