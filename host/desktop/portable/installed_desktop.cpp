#include "platform/desktop.h"

namespace platform {
namespace {

// The state that the module and the program share: it lives here, in the library that both are
// linked to.
Desktop* installed_desktop = nullptr;
Registry* installed_registry = nullptr;

}  // namespace

void InstallDesktop(Desktop* desktop) { installed_desktop = desktop; }

Desktop* CurrentDesktop() { return installed_desktop; }

void InstallRegistry(Registry* registry) { installed_registry = registry; }

Registry* CurrentRegistry() { return installed_registry; }

}  // namespace platform
