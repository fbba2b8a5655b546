#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/desktop/open_dialog.h"
#include "host/desktop/script_failure.h"
#include "platform/dialog.h"
#include "platform/export.h"

// An open dialog as its scripted user meets it. A script can do what a person can and no more: it
// reads the controls, types, clicks and presses Esc. Whatever else it asks for (a control that the
// dialog does not have, or that is disabled; anything after the dialog has ended) throws
// ScriptError. Any action may end the dialog, or show a message first.

namespace host {

class SKELDER_API ScriptedDialog {
 public:
  // Made by the desktop, which keeps `dialog` and `failure` as long as this object, and `handler`
  // until the dialog has ended.
  ScriptedDialog(int id, OpenDialog& dialog, platform::DialogHandler& handler,
                 const ScriptFailure& failure);

  [[nodiscard]] int Id() const { return id_; }  // the resource that the dialog was built from
  [[nodiscard]] const std::string& Title() const;
  [[nodiscard]] const std::vector<DialogControl>& Controls() const;  // in tab order
  [[nodiscard]] bool Has(int control) const;
  [[nodiscard]] const std::string& Text(int control) const;
  [[nodiscard]] bool IsChecked(int control) const;
  [[nodiscard]] bool IsEnabled(int control) const;
  [[nodiscard]] bool HasEnded() const;

  // The window that the dialog was centred over, or null.
  [[nodiscard]] HWND CentredOver() const;

  // Where it is: the window of the dialog itself.
  [[nodiscard]] HWND Window() const;

  // Replaces the text of an edit control, or of one of the host's own.
  void Type(int control, std::string_view text);

  // Clicks a push button, a check box (which changes its state) or a radio button (which the
  // handler selects).
  void Click(int control);

  // Presses Esc, or closes the dialog by its frame: both are the same to it.
  void PressEscape();

 private:
  void RequireOpen() const;
  [[nodiscard]] DialogControl& Existing(int control) const;
  [[nodiscard]] DialogControl& Usable(int control) const;
  [[noreturn]] void Refuse(int control, const char* reason) const;
  void Send(int control);

  int id_;
  OpenDialog& dialog_;
  platform::DialogHandler& handler_;
  const ScriptFailure& failure_;
};

}  // namespace host
