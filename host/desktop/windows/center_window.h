#pragma once

#include "platform/handles.h"

// What CenterWindow of the SDK leaves behind, for scripts to look at.

namespace host {

// The window that CenterWindow has put `window` over last, or null.
HWND WindowCenteredOver(HWND window);

}  // namespace host
