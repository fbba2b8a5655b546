#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <vector>

#include "host/desktop/portable/custom_edit.h"
#include "host/desktop/portable/window.h"
#include "host/desktop/scripted_dialog.h"
#include "platform/dialog.h"
#include "platform/dialog_template.h"
#include "platform/export.h"

// A dialog that is open on a desktop without screen: the state of its controls, built from the
// template and changed by the dialog's handler. What the user does stands in open_dialog_user.h.

namespace host {

// A control as it is kept, and its window.
struct OpenControl {
  DialogControl state;
  HWND__ window{};

  // Whether the user can click it, if it is not disabled.
  bool IsClickable() const {
    return state.kind == platform::ControlKind::kPushButton ||
           state.kind == platform::ControlKind::kCheckBox ||
           state.kind == platform::ControlKind::kRadioButton;
  }

  // Whether the user can type into it, if it is neither disabled nor read-only.
  bool IsTypable() const {
    return state.kind == platform::ControlKind::kEdit || window.custom_edit != nullptr;
  }
};

class SKELDER_API OpenDialog final : public platform::Dialog {
 public:
  // Builds the controls of `dialog`, unchecked and empty but for their texts. `parent` may be null.
  // A `modal` dialog ends when its handler says so, another one when it is closed.
  OpenDialog(const platform::DialogTemplate& dialog, HWND parent, bool modal);
  OpenDialog(const OpenDialog&) = delete;
  OpenDialog& operator=(const OpenDialog&) = delete;

  HWND Window() override;
  HWND ControlWindow(int control) override;
  void SetText(int control, const char* text) override;
  std::size_t GetText(int control, char* buffer, std::size_t size) override;
  void SetChecked(int control, bool checked) override;
  bool IsChecked(int control) override;
  void SetEnabled(int control, bool enabled) override;
  void End(int result) override;

  [[nodiscard]] const std::string& Title() const { return title_; }
  [[nodiscard]] const std::vector<OpenControl>& Controls() const { return controls_; }
  // Ends the dialog, whatever its kind.
  void Close() { ended_ = true; }

  [[nodiscard]] bool HasEnded() const { return ended_; }
  [[nodiscard]] int Result() const { return result_; }  // of the last End

  // The control `id`, or null. Valid as long as the dialog.
  OpenControl* Find(int id);

 private:
  HWND__ window_;
  std::string title_;
  std::vector<OpenControl> controls_;
  std::deque<CustomEdit> custom_edits_;
  bool modal_;
  bool ended_ = false;
  int result_ = platform::kDialogNotCreated;
};

}  // namespace host
