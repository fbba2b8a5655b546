#pragma once

#include <string>
#include <string_view>

#include "platform/handles.h"

// The texts of windows of this thread, as UTF-8.

namespace host {

std::string TextOf(HWND window);
void SetTextOf(HWND window, std::string_view text);

// The name of the window's class.
std::string ClassOf(HWND window);

// Whether `window` is a dialog of whatever kind, built from a template.
bool IsDialogWindow(HWND window);

}  // namespace host
