#include "plugin/utilities/marker_selection_dialog.h"

#include <cassert>

#include "plugin/resources/resource.h"

namespace orvane {

bool MarkerSelectionDialog::Open(HINSTANCE module, HWND parent) {
  dialog_ = platform::CreateModelessDialog(module, IDD_MAPPING_CREATOR, parent, *this);
  if (dialog_ == nullptr) return false;
  platform::ShowModelessDialog(*dialog_);
  return true;
}

void MarkerSelectionDialog::Ask(const char* description, bool may_go_back, bool may_skip) {
  assert(dialog_ != nullptr);
  pressed_ = Button::kNone;
  dialog_->SetText(IDC_MARKER_DESCRIPTION, description);
  dialog_->SetEnabled(IDC_BACK, may_go_back);
  dialog_->SetEnabled(IDC_SKIP, may_skip);
}

void MarkerSelectionDialog::Command(platform::Dialog& /*dialog*/, int control) {
  switch (control) {
    case IDC_BACK:
      return Press(Button::kBack);
    case IDC_SKIP:
      return Press(Button::kSkip);
    case IDC_ABORT:
    case platform::kCloseControl:
      return Press(Button::kAbort);
    default:
      return;
  }
}

void MarkerSelectionDialog::Press(Button button) {
  if (pressed_ == Button::kNone || button == Button::kAbort) pressed_ = button;
}

}  // namespace orvane
