#include "host/desktop/windows/dialog_window.h"

#include <windows.h>

#include <algorithm>
#include <utility>

#include "host/base/letter_case.h"
#include "host/desktop/windows/center_window.h"
#include "host/desktop/windows/thread_windows.h"
#include "host/desktop/windows/window_text.h"
#include "platform/windows/text.h"
#include "sdk/skelderutil/custom_edit.h"

namespace host {
namespace {

using platform::ControlKind;
using platform::ControlTemplate;

bool IsClickable(ControlKind kind) {
  return kind == ControlKind::kPushButton || kind == ControlKind::kCheckBox ||
         kind == ControlKind::kRadioButton;
}

bool HasState(ControlKind kind) {
  return kind == ControlKind::kCheckBox || kind == ControlKind::kRadioButton;
}

bool IsReadOnly(HWND edit) { return (GetWindowLongA(edit, GWL_STYLE) & ES_READONLY) != 0; }

bool IsButtonChecked(HWND button) { return SendMessageA(button, BM_GETCHECK, 0, 0) == BST_CHECKED; }

DialogControl StateOf(const ControlTemplate& control, HWND window) {
  return {control.id,
          control.kind,
          TextOf(window),
          control.kind == ControlKind::kEdit && IsReadOnly(window),
          IsWindowEnabled(window) != 0,
          HasState(control.kind) && IsButtonChecked(window)};
}

}  // namespace

DialogWindow::DialogWindow(HWND window, DialogResource resource, const ScriptFailure& failure)
    : window_(window), resource_(std::move(resource)), failure_(failure) {}

std::vector<DialogControl> DialogWindow::Controls() const {
  std::vector<DialogControl> controls;
  HWND window = GetWindow(window_, GW_CHILD);
  for (const ControlTemplate& control : resource_.dialog.controls) {
    controls.push_back(StateOf(control, window));
    window = GetWindow(window, GW_HWNDNEXT);
  }
  return controls;
}

bool DialogWindow::Has(int control) const { return ControlWindow(control) != nullptr; }

std::string DialogWindow::Text(int control) const { return TextOf(Existing(control)); }

bool DialogWindow::IsChecked(int control) const {
  const HWND button = Existing(control);
  return HasState(KindOf(control)) && IsButtonChecked(button);
}

bool DialogWindow::IsEnabled(int control) const { return IsWindowEnabled(Existing(control)) != 0; }

bool DialogWindow::HasEnded() const { return IsWindow(window_) == 0 || !IsShown(window_); }

HWND DialogWindow::Owner() const {
  const bool is_part = (GetWindowLongA(window_, GWL_STYLE) & WS_CHILD) != 0;
  return is_part ? GetAncestor(window_, GA_PARENT) : GetWindow(window_, GW_OWNER);
}

HWND DialogWindow::ControlWindow(int control) const { return GetDlgItem(window_, control); }

HWND DialogWindow::CenteredOver() const { return WindowCenteredOver(window_); }

void DialogWindow::Type(int control, std::string_view text) {
  const HWND edit = Usable(control);
  const bool is_typable =
      KindOf(control) == ControlKind::kEdit || SameButForCase(ClassOf(edit), kCustomEditClass);
  if (!is_typable) Refuse(control, "is nothing to type into");
  if (IsReadOnly(edit)) Refuse(control, "is read-only");
  const std::wstring wide = platform::WideFromUtf8(std::string(text));
  SetFocus(edit);
  SendMessageW(edit, EM_SETSEL, 0, -1);
  SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(wide.c_str()));
  failure_.Rethrow();
}

void DialogWindow::Click(int control) {
  const HWND button = Usable(control);
  if (!IsClickable(KindOf(control))) Refuse(control, "is nothing to click");
  SendMessageA(button, BM_CLICK, 0, 0);
  failure_.Rethrow();  // of what was shown meanwhile
}

// As the system does.
void DialogWindow::PressEscape() {
  RequireOpen();
  SendMessageA(window_, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED),
               reinterpret_cast<LPARAM>(GetDlgItem(window_, IDCANCEL)));
  failure_.Rethrow();
}

void DialogWindow::RequireOpen() const {
  if (HasEnded()) throw ScriptError("The dialog \"" + Title() + "\" has ended.");
}

HWND DialogWindow::Existing(int control) const {
  const HWND found = ControlWindow(control);
  if (found == nullptr) Refuse(control, "does not exist");
  return found;
}

HWND DialogWindow::Usable(int control) const {
  RequireOpen();
  const HWND found = Existing(control);
  if (IsWindowEnabled(found) == 0) Refuse(control, "is disabled");
  return found;
}

ControlKind DialogWindow::KindOf(int control) const {
  const auto& controls = resource_.dialog.controls;
  const auto found = std::find_if(controls.begin(), controls.end(),
                                  [control](const auto& each) { return each.id == control; });
  return found == controls.end() ? ControlKind::kOther : found->kind;
}

void DialogWindow::Refuse(int control, const char* reason) const {
  throw ScriptError("Control " + std::to_string(control) + " of the dialog \"" + Title() + "\" " +
                    reason + ".");
}

}  // namespace host
