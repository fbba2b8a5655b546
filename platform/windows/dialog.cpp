#include "platform/dialog.h"

#include <windows.h>

#include <algorithm>
#include <cassert>
#include <limits>

#include "platform/windows/activation_context.h"

namespace platform {
namespace {

// A window that was created from a dialog template. Keeps nothing but its handle, so that every
// message may have its own; a window that is gone does nothing, as the system sees to.
class WindowDialog : public Dialog {
 public:
  explicit WindowDialog(HWND window) : window_(window) {}
  virtual ~WindowDialog() = default;

  HWND Window() override { return window_; }
  HWND ControlWindow(int control) override { return GetDlgItem(window_, control); }

  void SetText(int control, const char* text) override { SetDlgItemTextA(window_, control, text); }

  std::size_t GetText(int control, char* buffer, std::size_t size) override {
    constexpr std::size_t kLargest = std::numeric_limits<int>::max();
    assert(buffer != nullptr && size > 0);
    buffer[0] = '\0';
    return GetDlgItemTextA(window_, control, buffer, static_cast<int>(std::min(size, kLargest)));
  }

  void SetChecked(int control, bool checked) override {
    CheckDlgButton(window_, control, checked ? BST_CHECKED : BST_UNCHECKED);
  }
  bool IsChecked(int control) override {
    return IsDlgButtonChecked(window_, control) == BST_CHECKED;
  }

  void SetEnabled(int control, bool enabled) override {
    const HWND window = ControlWindow(control);
    if (!enabled && window != nullptr && window == GetFocus()) FocusFirstControl();
    EnableWindow(window, enabled ? TRUE : FALSE);
  }

  void End(int /*result*/) override {}

 private:
  // A disabled control loses the keyboard, and with it the user loses the dialog. The first one,
  // and not the next, which may be a button that does what he does not expect of the same key.
  void FocusFirstControl() {
    const HWND first = GetNextDlgTabItem(window_, nullptr, FALSE);
    SendMessageA(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(first), TRUE);
  }

  HWND window_;
};

class ModalDialog final : public WindowDialog {
 public:
  using WindowDialog::WindowDialog;

  void End(int result) override { EndDialog(Window(), result); }
};

// The handler lies where the system keeps a value for the dialog's procedure.
void SetHandler(HWND window, LPARAM handler) { SetWindowLongPtrA(window, DWLP_USER, handler); }

DialogHandler* HandlerOf(HWND window) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): made by HandlerParameter
  return reinterpret_cast<DialogHandler*>(GetWindowLongPtrA(window, DWLP_USER));
}

// Buttons report a click, and Esc and the close box kCloseControl, with no notification code; other
// notifications have one.
bool IsCommand(UINT message, WPARAM word) {
  return message == WM_COMMAND && HIWORD(word) == BN_CLICKED;
}

// The system's dialog procedure: tells the handler, which comes with the first message, what
// happens.
template <typename AnyDialog>
INT_PTR CALLBACK RunHandler(HWND window, UINT message, WPARAM word, LPARAM parameter) {
  if (message == WM_INITDIALOG) SetHandler(window, parameter);
  DialogHandler* const handler = HandlerOf(window);
  if (handler == nullptr) return FALSE;
  AnyDialog dialog(window);
  if (message == WM_INITDIALOG) {
    handler->Initialize(dialog);
    return TRUE;
  }
  if (!IsCommand(message, word)) return FALSE;
  handler->Command(dialog, LOWORD(word));
  return TRUE;
}

const char* ResourceName(int dialog_id) { return MAKEINTRESOURCEA(dialog_id); }

}  // namespace

int RunModalDialog(HINSTANCE module, int dialog_id, HWND parent, DialogHandler& handler) {
  const ActivationContext context(module);
  return static_cast<int>(DialogBoxParamA(module, ResourceName(dialog_id), parent,
                                          RunHandler<ModalDialog>, HandlerParameter(handler)));
}

ModelessDialog CreateModelessDialog(HINSTANCE module, int dialog_id, HWND parent,
                                    DialogHandler& handler) {
  const ActivationContext context(module);
  const HWND window = CreateDialogParamA(module, ResourceName(dialog_id), parent,
                                         HandlerProcedure(), HandlerParameter(handler));
  return window == nullptr ? nullptr : ModelessDialog(new WindowDialog(window));
}

void ShowModelessDialog(Dialog& dialog) { ShowWindow(dialog.Window(), SW_SHOW); }

void DestroyModelessDialog(Dialog* dialog) {
  if (dialog == nullptr) return;
  SetHandler(dialog->Window(), 0);
  DestroyWindow(dialog->Window());
  delete static_cast<WindowDialog*>(dialog);
}

DialogProcedure HandlerProcedure() { return RunHandler<WindowDialog>; }

std::intptr_t HandlerParameter(DialogHandler& handler) {
  return reinterpret_cast<std::intptr_t>(&handler);
}

}  // namespace platform
