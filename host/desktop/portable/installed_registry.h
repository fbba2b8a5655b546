#pragma once

#include "platform/desktop.h"

// The registry in use, for as long as a scope lasts. The registry stays its maker's.

namespace host {

// Puts a registry in use as long as this object lives; then the one before is again.
class InstalledRegistry {
 public:
  explicit InstalledRegistry(platform::Registry& registry) { platform::InstallRegistry(&registry); }
  InstalledRegistry(const InstalledRegistry&) = delete;
  InstalledRegistry& operator=(const InstalledRegistry&) = delete;
  ~InstalledRegistry() { platform::InstallRegistry(previous_); }

 private:
  platform::Registry* previous_ = platform::CurrentRegistry();
};

}  // namespace host
