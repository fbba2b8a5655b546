#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/desktop/script_failure.h"
#include "host/desktop/scripted_dialog.h"
#include "host/desktop/windows/dialog_resources.h"

// A module's dialog as its scripted user meets it. The window belongs to the system and the module;
// the user owns this side of it.

namespace host {

// A dialog of a module's own in a real window. A dialog that its handler ends is hidden at once,
// and destroyed when everything has returned that was called from it.
class DialogWindow final : public ScriptedDialog {
 public:
  // `window` was built from `resource`. `failure` outlives this object.
  DialogWindow(HWND window, DialogResource resource, const ScriptFailure& failure);
  ~DialogWindow() = default;

  [[nodiscard]] int Id() const override { return resource_.id; }
  [[nodiscard]] std::string Title() const override { return resource_.dialog.title; }
  [[nodiscard]] std::vector<DialogControl> Controls() const override;
  [[nodiscard]] bool Has(int control) const override;
  [[nodiscard]] std::string Text(int control) const override;
  [[nodiscard]] bool IsChecked(int control) const override;
  [[nodiscard]] bool IsEnabled(int control) const override;
  [[nodiscard]] bool HasEnded() const override;
  [[nodiscard]] HWND Window() const override { return window_; }
  [[nodiscard]] HWND Owner() const override;
  [[nodiscard]] HWND ControlWindow(int control) const override;
  [[nodiscard]] HWND CenteredOver() const override;

  void Type(int control, std::string_view text) override;
  void Click(int control) override;
  void PressEscape() override;

 private:
  void RequireOpen() const;
  [[nodiscard]] HWND Existing(int control) const;
  [[nodiscard]] HWND Usable(int control) const;
  [[nodiscard]] platform::ControlKind KindOf(int control) const;
  [[noreturn]] void Refuse(int control, const char* reason) const;

  HWND window_;
  DialogResource resource_;
  const ScriptFailure& failure_;
};

}  // namespace host
