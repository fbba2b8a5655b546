#pragma once

#include <optional>

#include "platform/dialog_template.h"
#include "platform/handles.h"

// The dialogs in a module's resources, and which of them a window was built from.

namespace host {

struct DialogResource {
  int id = 0;
  platform::DialogTemplate dialog;
};

// The dialog `id` of `module`; nothing when it has no such dialog.
[[nodiscard]] std::optional<DialogResource> FindDialogResource(HINSTANCE module, int id);

// The dialog that the dialog window `window` was built from, as title and controls tell; nothing
// when it is none of the module that created it.
[[nodiscard]] std::optional<DialogResource> ResourceOf(HWND window);

}  // namespace host
