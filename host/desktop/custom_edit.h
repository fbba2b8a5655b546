#pragma once

#include "platform/handles.h"
#include "sdk/skelderutil/custom_edit.h"

namespace host {

// The host's own edit control that `window` is, or null. Valid as long as the window.
ICustEdit* CustomEditOf(HWND window);

}  // namespace host
