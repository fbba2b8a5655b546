#include "plugin/exchange/options_dialog.h"

#include <utility>

#include "plugin/exchange/attempt.h"
#include "sdk/skelderutil/window.h"

namespace orvane {

bool OptionsDialog::Show() {
  const int result = platform::RunModalDialog(module_, dialog_id_, parent_, *this);
  if (failure_ != nullptr) std::rethrow_exception(std::exchange(failure_, nullptr));
  return result == kConfirmed;
}

void OptionsDialog::Initialize(platform::Dialog& dialog) {
  try {
    CenterWindow(dialog.Window(), parent_);
    Fill(dialog);
  } catch (...) {
    Fail(dialog);
  }
}

void OptionsDialog::Command(platform::Dialog& dialog, int control) {
  try {
    Answer(dialog, control);
  } catch (...) {
    Fail(dialog);
  }
}

// Keeps the exception that is being handled, and ends the dialog.
void OptionsDialog::Fail(platform::Dialog& dialog) noexcept {
  failure_ = std::current_exception();
  Attempt([&dialog] { dialog.End(kCancelled); });
}

}  // namespace orvane
