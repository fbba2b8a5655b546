#pragma once

#include "platform/handles.h"

// What a window handle points at off Windows. Nothing is drawn: a window is known by its
// address, and remembers what tests ask about. Whoever creates a window owns it.

namespace host {
class CustomEdit;
}  // namespace host

struct HWND__ {
  HWND parent = nullptr;
  HWND centered_over = nullptr;             // the last window that CenterWindow put this one over
  host::CustomEdit* custom_edit = nullptr;  // what the window is, if it is such a control
};
