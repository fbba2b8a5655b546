#pragma once

#include "platform/handles.h"

// The module that this code was linked into: the owner of its dialogs and strings.

namespace platform {

// The handle of the running module, or null while the system has not attached it yet.
[[nodiscard]] HINSTANCE ModuleHandle();

}  // namespace platform
