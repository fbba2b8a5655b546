#pragma once

#include "platform/handles.h"

// The about box of the module, shared by all its classes.
namespace orvane {

// Shows the about dialog from the resources of `module` over `owner` and waits until the user
// closes it. Does nothing when it cannot be created.
void ShowAboutDialog(HINSTANCE module, HWND owner) noexcept;

}  // namespace orvane
