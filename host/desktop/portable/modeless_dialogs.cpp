#include "host/desktop/portable/modeless_dialogs.h"

#include <algorithm>

namespace host {

platform::Dialog& ModelessDialogs::Create(int dialog_id,
                                          const platform::DialogTemplate& dialog_template,
                                          HWND parent, platform::DialogHandler& handler) {
  entries_.push_back(
      std::make_unique<OpenedDialog>(dialog_id, dialog_template, parent, handler, failure_));
  OpenDialog& dialog = entries_.back()->dialog;
  handler.Initialize(dialog);
  return dialog;
}

void ModelessDialogs::Show(const platform::Dialog& dialog) {
  if (OpenedDialog* const entry = Find(dialog)) entry->shown = true;
}

void ModelessDialogs::Destroy(const platform::Dialog& dialog) {
  if (OpenedDialog* const entry = Find(dialog)) entry->dialog.Close();
}

ScriptedDialog* ModelessDialogs::FindShown(int dialog_id) {
  const auto found =
      std::find_if(entries_.rbegin(), entries_.rend(), [dialog_id](const auto& entry) {
        return entry->shown && !entry->dialog.HasEnded() && entry->user_side.Id() == dialog_id;
      });
  return found == entries_.rend() ? nullptr : &(*found)->user_side;
}

platform::Dialog* ModelessDialogs::FindByWindow(HWND window) {
  const auto found = std::find_if(entries_.begin(), entries_.end(), [window](const auto& entry) {
    return !entry->dialog.HasEnded() && entry->dialog.Window() == window;
  });
  return found == entries_.end() ? nullptr : &(*found)->dialog;
}

bool ModelessDialogs::AnyWaiting() const {
  return std::any_of(entries_.begin(), entries_.end(), [](const auto& entry) {
    return entry->shown && !entry->is_part && !entry->dialog.HasEnded();
  });
}

ModelessDialogs::OpenedDialog* ModelessDialogs::Find(const platform::Dialog& dialog) {
  const auto found = std::find_if(entries_.begin(), entries_.end(), [&dialog](const auto& entry) {
    return &entry->dialog == &dialog && !entry->dialog.HasEnded();
  });
  return found == entries_.end() ? nullptr : found->get();
}

}  // namespace host
