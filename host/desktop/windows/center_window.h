#pragma once

#include "platform/handles.h"

namespace host {

// The window that CenterWindow has put `window` over last, or null.
HWND WindowCenteredOver(HWND window);

}  // namespace host
