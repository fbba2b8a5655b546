#pragma once

#include "platform/handles.h"
#include "sdk/skelderutil/custom_edit.h"

// The host's own edit control, which each kind of desktop has its body for. The window owns it;
// that plug-ins give it back is the application's to count (host/application/application.h).

namespace host {

// The host's own edit control that `window` is, or null. Valid as long as the window.
[[nodiscard]] ICustEdit* CustomEditOf(HWND window);

}  // namespace host
