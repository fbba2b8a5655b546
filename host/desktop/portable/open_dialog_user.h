#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/desktop/portable/open_dialog.h"
#include "host/desktop/script_failure.h"
#include "host/desktop/scripted_dialog.h"
#include "platform/dialog.h"

// What a scripted user does in a dialog on a desktop without screen. The state of the controls
// stands in open_dialog.h. Whoever opens the dialog owns both.

namespace host {

// An open dialog from the side of its scripted user.
class OpenDialogUser final : public ScriptedDialog {
 public:
  // `id` is the resource that `dialog` was built from. `dialog` and `failure` live as long as this
  // object, and `handler` until the dialog has ended.
  OpenDialogUser(int id, OpenDialog& dialog, platform::DialogHandler& handler,
                 const ScriptFailure& failure);
  ~OpenDialogUser() = default;

  [[nodiscard]] int Id() const override { return id_; }
  [[nodiscard]] std::string Title() const override { return dialog_.Title(); }
  [[nodiscard]] std::vector<DialogControl> Controls() const override;
  [[nodiscard]] bool Has(int control) const override;
  [[nodiscard]] std::string Text(int control) const override;
  [[nodiscard]] bool IsChecked(int control) const override;
  [[nodiscard]] bool IsEnabled(int control) const override;
  [[nodiscard]] bool HasEnded() const override { return dialog_.HasEnded(); }
  [[nodiscard]] HWND Window() const override { return dialog_.Window(); }
  [[nodiscard]] HWND Owner() const override;
  [[nodiscard]] HWND ControlWindow(int control) const override;
  [[nodiscard]] HWND CenteredOver() const override;

  void Type(int control, std::string_view text) override;
  void Click(int control) override;
  void PressEscape() override;

 private:
  void RequireOpen() const;
  [[nodiscard]] OpenControl& Existing(int control) const;
  [[nodiscard]] OpenControl& Usable(int control) const;
  [[noreturn]] void Refuse(int control, const char* reason) const;
  void Send(int control);

  int id_;
  OpenDialog& dialog_;
  platform::DialogHandler& handler_;
  const ScriptFailure& failure_;
};

}  // namespace host
