#include "platform/dialog.h"

#include "platform/desktop.h"

namespace platform {

int RunModalDialog(HINSTANCE module, int dialog_id, HWND parent, DialogHandler& handler) {
  Desktop* const desktop = CurrentDesktop();
  if (desktop == nullptr) return kDialogNotCreated;
  return desktop->RunDialog(module, dialog_id, parent, handler);
}

}  // namespace platform
