#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "platform/handles.h"

// Dialogs from a module's resources. What a dialog does is written once, as a DialogHandler,
// against the Dialog it is shown as; the same handler serves a real window and a scripted one.

namespace platform {

// One open dialog, as its handler sees it. Controls are named by the ids of the resource; an
// operation on a control that the dialog does not have does nothing, and reading one gives the
// empty text or false, as the system does.
class Dialog {
 public:
  // The dialog's window, for use as an owner or to be centred. Valid until the dialog ends.
  [[nodiscard]] virtual HWND Window() = 0;

  // The window of a control, for the host's own kinds of control; null when the dialog has no such
  // control. Valid until the dialog ends.
  [[nodiscard]] virtual HWND ControlWindow(int control) = 0;

  virtual void SetText(int control, const char* text) = 0;

  // Copies the control's text to `buffer`, cut to size - 1 characters and always terminated.
  // Returns the number of characters copied.
  // REQUIRES: `buffer` holds `size` characters, 1 or more.
  virtual std::size_t GetText(int control, char* buffer, std::size_t size) = 0;

  virtual void SetChecked(int control, bool checked) = 0;
  [[nodiscard]] virtual bool IsChecked(int control) = 0;
  virtual void SetEnabled(int control, bool enabled) = 0;

  // Ends a modal dialog: RunModalDialog returns `result` once the handler has returned. Does
  // nothing to a dialog that is not modal.
  virtual void End(int result) = 0;

 protected:
  ~Dialog() = default;
};

// What a dialog does. The desktop calls it on the user-interface thread while the dialog is open;
// it is never called after the dialog has ended. No exception may leave an operation.
class DialogHandler {
 public:
  // Called once, before the dialog is shown: fills the controls. The system then sets the default
  // focus.
  virtual void Initialize(Dialog& dialog) = 0;

  // Called when the user has used `control` (pressed a button, clicked a radio or check box).
  // Check boxes have changed their state by then; radios are selected by the handler. Esc and the
  // close box arrive as control 2.
  virtual void Command(Dialog& dialog, int control) = 0;

 protected:
  ~DialogHandler() = default;
};

// The control that Esc and the close box of a dialog report.
inline constexpr int kCloseControl = 2;

// What RunModalDialog returns when the dialog could not be created.
inline constexpr int kDialogNotCreated = -1;

// Shows dialog `dialog_id` of `module` over `parent` and waits until `handler` ends it.
// Returns the handler's result, or kDialogNotCreated. `handler` stays the caller's and must live
// until the call returns.
int RunModalDialog(HINSTANCE module, int dialog_id, HWND parent, DialogHandler& handler);

// Destroys a modeless dialog, which must not be used after; its handler is not called any more.
void DestroyModelessDialog(Dialog* dialog);

struct ModelessDialogDeleter {
  void operator()(Dialog* dialog) const { DestroyModelessDialog(dialog); }
};

// A dialog that stays open while the program goes on, until its owner lets go of it.
using ModelessDialog = std::unique_ptr<Dialog, ModelessDialogDeleter>;

// Creates dialog `dialog_id` of `module` over `parent`, not shown yet, and lets `handler` fill it.
// Returns null when it cannot be created. `handler` stays the caller's and must outlive the dialog.
[[nodiscard]] ModelessDialog CreateModelessDialog(HINSTANCE module, int dialog_id, HWND parent,
                                                  DialogHandler& handler);

void ShowModelessDialog(Dialog& dialog);

// For a dialog that the host creates and destroys: what the host is given to run it, procedure and
// parameter together. `handler` stays the caller's and must outlive the dialog.
DialogProcedure HandlerProcedure();
std::intptr_t HandlerParameter(DialogHandler& handler);

}  // namespace platform
