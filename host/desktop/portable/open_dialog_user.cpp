#include "host/desktop/portable/open_dialog_user.h"

#include <algorithm>
#include <iterator>

namespace host {

OpenDialogUser::OpenDialogUser(int id, OpenDialog& dialog, platform::DialogHandler& handler,
                               const ScriptFailure& failure)
    : id_(id), dialog_(dialog), handler_(handler), failure_(failure) {}

std::vector<DialogControl> OpenDialogUser::Controls() const {
  std::vector<DialogControl> controls;
  std::transform(dialog_.Controls().begin(), dialog_.Controls().end(), std::back_inserter(controls),
                 [](const OpenControl& control) { return control.state; });
  return controls;
}

bool OpenDialogUser::Has(int control) const { return dialog_.Find(control) != nullptr; }

std::string OpenDialogUser::Text(int control) const { return Existing(control).state.text; }

bool OpenDialogUser::IsChecked(int control) const { return Existing(control).state.checked; }

bool OpenDialogUser::IsEnabled(int control) const { return Existing(control).state.enabled; }

HWND OpenDialogUser::Owner() const { return Window()->parent; }

HWND OpenDialogUser::ControlWindow(int control) const { return dialog_.ControlWindow(control); }

HWND OpenDialogUser::CenteredOver() const { return Window()->centered_over; }

void OpenDialogUser::Type(int control, std::string_view text) {
  OpenControl& edit = Usable(control);
  if (!edit.IsTypable()) Refuse(control, "is nothing to type into");
  if (edit.state.read_only) Refuse(control, "is read-only");
  edit.state.text = text;
}

void OpenDialogUser::Click(int control) {
  OpenControl& button = Usable(control);
  if (!button.IsClickable()) Refuse(control, "is nothing to click");
  const bool is_check_box = button.state.kind == platform::ControlKind::kCheckBox;
  if (is_check_box) button.state.checked = !button.state.checked;
  Send(control);
}

void OpenDialogUser::PressEscape() {
  RequireOpen();
  Send(platform::kCloseControl);
}

void OpenDialogUser::RequireOpen() const {
  if (HasEnded()) throw ScriptError("The dialog \"" + Title() + "\" has ended.");
}

OpenControl& OpenDialogUser::Existing(int control) const {
  OpenControl* const found = dialog_.Find(control);
  if (found == nullptr) Refuse(control, "does not exist");
  return *found;
}

OpenControl& OpenDialogUser::Usable(int control) const {
  RequireOpen();
  OpenControl& found = Existing(control);
  if (!found.state.enabled) Refuse(control, "is disabled");
  return found;
}

void OpenDialogUser::Refuse(int control, const char* reason) const {
  throw ScriptError("Control " + std::to_string(control) + " of the dialog \"" + Title() + "\" " +
                    reason + ".");
}

// A message that failed meanwhile ends the script here, on this side of the module.
void OpenDialogUser::Send(int control) {
  handler_.Command(dialog_, control);
  failure_.Rethrow();
}

}  // namespace host
