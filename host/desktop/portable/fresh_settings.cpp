#include "host/desktop/portable/installed_registry.h"
#include "host/desktop/portable/memory_registry.h"
#include "host/desktop/settings.h"

namespace host {

class FreshSettings::Body {
 public:
  MemoryRegistry registry;

 private:
  InstalledRegistry installed_{registry};
};

FreshSettings::FreshSettings() : body_(std::make_unique<Body>()) {}
FreshSettings::~FreshSettings() = default;

std::optional<RegistryValue> FreshSettings::FindValue(const std::string& path,
                                                      const std::string& name) const {
  return body_->registry.FindValue(path, name);
}

std::vector<std::string> FreshSettings::OpenKeys() const { return body_->registry.OpenKeys(); }

bool FreshSettings::HasKey(const std::string& path) const { return body_->registry.HasKey(path); }

void FreshSettings::StoreValue(const std::string& path, const std::string& name,
                               const RegistryValue& value) {
  platform::RegistryKey* const key = body_->registry.CreateKey(nullptr, path.c_str());
  body_->registry.SetValue(key, name.c_str(), value.type, value.bytes.data(), value.bytes.size());
  body_->registry.CloseKey(key);
}

void FreshSettings::RefuseKey(const std::string& path) { body_->registry.RefuseKey(path); }

}  // namespace host
