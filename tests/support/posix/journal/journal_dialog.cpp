#include "tests/support/posix/journal/journal_dialog.h"

namespace test {

JournalDialog::JournalDialog(Journal& journal, platform::Dialog& own, int id)
    : journal_(journal), own_(own), name_("dialog " + std::to_string(id)) {
  journal_.NameWindow(own_.Window(), name_);
}

HWND JournalDialog::ControlWindow(int control) {
  HWND const window = own_.ControlWindow(control);
  if (window != nullptr) journal_.NameWindow(window, "control " + std::to_string(control));
  return window;
}

void JournalDialog::SetText(int control, const char* text) {
  journal_.Note(name_, " text ", control, " = ", Quoted(text));
  own_.SetText(control, text);
}

std::size_t JournalDialog::GetText(int control, char* buffer, std::size_t size) {
  const std::size_t length = own_.GetText(control, buffer, size);
  journal_.Note(name_, " text ", control, " to ", size, " characters? ", Quoted(buffer));
  return length;
}

void JournalDialog::SetChecked(int control, bool checked) {
  journal_.Note(name_, checked ? " check " : " uncheck ", control);
  own_.SetChecked(control, checked);
}

bool JournalDialog::IsChecked(int control) {
  const bool checked = own_.IsChecked(control);
  journal_.Note(name_, " checked ", control, "? ", checked);
  return checked;
}

void JournalDialog::SetEnabled(int control, bool enabled) {
  journal_.Note(name_, enabled ? " enable " : " disable ", control);
  own_.SetEnabled(control, enabled);
}

void JournalDialog::End(int result) {
  journal_.Note(name_, " end with ", result);
  own_.End(result);
}

}  // namespace test
