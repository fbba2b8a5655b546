#pragma once

#include "host/desktop/portable/live_desktop.h"

// Dialogs that the person sees now.

namespace web {

// The one that was built from the resource `id`, the earliest of several; null when there is none.
[[nodiscard]] inline host::LiveDialog* FindShown(const host::LiveDesktop& desktop, int id) {
  for (host::LiveDialog* const dialog : desktop.Dialogs()) {
    if (dialog->id == id) return dialog;
  }
  return nullptr;
}

}  // namespace web
