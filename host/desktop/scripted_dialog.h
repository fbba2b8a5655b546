#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/dialog_template.h"
#include "platform/export.h"
#include "platform/handles.h"

// An open dialog as its scripted user meets it. A script can do what a person can and no more: it
// reads the controls, types, clicks and presses Esc. Whatever else it asks for (a control that the
// dialog does not have, or that is disabled; anything after the dialog has ended) throws
// ScriptError. Any action may end the dialog, or show a message first.

namespace host {

// A control and the state it is in.
struct DialogControl {
  int id = 0;
  platform::ControlKind kind = platform::ControlKind::kOther;
  std::string text;
  bool read_only = false;  // of an edit control
  bool enabled = true;
  bool checked = false;
};

class SKELDER_API ScriptedDialog {
 public:
  ScriptedDialog(const ScriptedDialog&) = delete;
  ScriptedDialog& operator=(const ScriptedDialog&) = delete;

  [[nodiscard]] virtual int Id() const = 0;  // the resource that the dialog was built from
  [[nodiscard]] virtual std::string Title() const = 0;
  [[nodiscard]] virtual std::vector<DialogControl> Controls() const = 0;  // in tab order
  [[nodiscard]] virtual bool Has(int control) const = 0;
  [[nodiscard]] virtual std::string Text(int control) const = 0;
  [[nodiscard]] virtual bool IsChecked(int control) const = 0;
  [[nodiscard]] virtual bool IsEnabled(int control) const = 0;
  [[nodiscard]] virtual bool HasEnded() const = 0;

  // Where it is: the window of the dialog itself, and the one that it stands over, or null.
  [[nodiscard]] virtual HWND Window() const = 0;
  [[nodiscard]] virtual HWND Owner() const = 0;

  // The window of a control; null when the dialog has no such control.
  [[nodiscard]] virtual HWND ControlWindow(int control) const = 0;

  // The window that the dialog was centred over, or null.
  [[nodiscard]] virtual HWND CenteredOver() const = 0;

  // Replaces the text of an edit control, or of one of the host's own.
  virtual void Type(int control, std::string_view text) = 0;

  // Clicks a push button, a check box (which changes its state) or a radio button (which the
  // handler selects).
  virtual void Click(int control) = 0;

  // Presses Esc, or closes the dialog by its frame: both are the same to it.
  virtual void PressEscape() = 0;

 protected:
  ScriptedDialog();
  ~ScriptedDialog();
};

}  // namespace host
