#pragma once

#include "platform/export.h"
#include "platform/handles.h"

// Centres `window` over `over`.
SKELDER_API void CenterWindow(HWND window, HWND over);
