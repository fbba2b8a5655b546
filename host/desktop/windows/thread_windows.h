#pragma once

#include <vector>

#include "platform/handles.h"

// Which windows there are. What they show is read by window_text.h, and whoever opened a window
// owns it.

namespace host {

// The windows of this thread that lie on the desktop itself and are shown, the topmost first.
std::vector<HWND> ShownWindows();

// The dialogs that are parts of `window`, shown or not.
std::vector<HWND> DialogsWithin(HWND window);

// Whether `window` is itself shown. What it is a part of may be hidden.
bool IsShown(HWND window);

}  // namespace host
