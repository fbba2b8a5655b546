#include "host/desktop/scripted_dialog.h"

namespace host {
namespace {

using platform::ControlKind;

bool IsClickable(ControlKind kind) {
  return kind == ControlKind::kPushButton || kind == ControlKind::kCheckBox ||
         kind == ControlKind::kRadioButton;
}

}  // namespace

ScriptedDialog::ScriptedDialog(int id, OpenDialog& dialog, platform::DialogHandler& handler,
                               const ScriptFailure& failure)
    : id_(id), dialog_(dialog), handler_(handler), failure_(failure) {}

const std::string& ScriptedDialog::Title() const { return dialog_.Title(); }

const std::vector<DialogControl>& ScriptedDialog::Controls() const { return dialog_.Controls(); }

bool ScriptedDialog::Has(int control) const { return dialog_.Find(control) != nullptr; }

const std::string& ScriptedDialog::Text(int control) const { return Existing(control).text; }

bool ScriptedDialog::IsChecked(int control) const { return Existing(control).checked; }

bool ScriptedDialog::IsEnabled(int control) const { return Existing(control).enabled; }

bool ScriptedDialog::HasEnded() const { return dialog_.HasEnded(); }

HWND ScriptedDialog::CentredOver() const { return dialog_.Window()->centred_over; }

void ScriptedDialog::Type(int control, std::string_view text) {
  DialogControl& edit = Usable(control);
  if (!edit.IsTypable()) Refuse(control, "is nothing to type into");
  if (edit.read_only) Refuse(control, "is read-only");
  edit.text = text;
}

void ScriptedDialog::Click(int control) {
  DialogControl& button = Usable(control);
  if (!IsClickable(button.kind)) Refuse(control, "is nothing to click");
  if (button.kind == ControlKind::kCheckBox) button.checked = !button.checked;
  Send(control);
}

void ScriptedDialog::PressEscape() {
  RequireOpen();
  Send(platform::kCloseControl);
}

HWND ScriptedDialog::Window() const { return dialog_.Window(); }

void ScriptedDialog::RequireOpen() const {
  if (HasEnded()) throw ScriptError("The dialog \"" + Title() + "\" has ended.");
}

DialogControl& ScriptedDialog::Existing(int control) const {
  DialogControl* const found = dialog_.Find(control);
  if (found == nullptr) Refuse(control, "does not exist");
  return *found;
}

DialogControl& ScriptedDialog::Usable(int control) const {
  RequireOpen();
  DialogControl& found = Existing(control);
  if (!found.enabled) Refuse(control, "is disabled");
  return found;
}

void ScriptedDialog::Refuse(int control, const char* reason) const {
  throw ScriptError("Control " + std::to_string(control) + " of the dialog \"" + Title() + "\" " +
                    reason + ".");
}

// A message that failed meanwhile ends the script here, on this side of the module.
void ScriptedDialog::Send(int control) {
  handler_.Command(dialog_, control);
  failure_.Rethrow();
}

}  // namespace host
