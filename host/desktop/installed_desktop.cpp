#include "platform/desktop.h"

namespace platform {
namespace {

// The one piece of state that the module and the program share: it lives here, in the library that
// both are linked to.
Desktop* installed_desktop = nullptr;

}  // namespace

void InstallDesktop(Desktop* desktop) { installed_desktop = desktop; }

Desktop* CurrentDesktop() { return installed_desktop; }

}  // namespace platform
