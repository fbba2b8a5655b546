#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "host/desktop/file_choice.h"
#include "host/desktop/scripted_dialog.h"
#include "host/desktop/user_script.h"
#include "host/desktop/windows/dialog_window.h"
#include "host/desktop/windows/message_box_window.h"
#include "host/desktop/windows/refused_dialogs.h"
#include "platform/handles.h"

// The scripted user in front of real windows: when he looks, and at what. What he answers stands in
// host/desktop/user_script.h. The scripted desktop owns him.

namespace host {

// A user who sits in front of the windows of this thread. Whenever a modal loop runs, whoever has
// started it, a timer looks for what has been opened, and lets the user answer it, inside that
// loop. While he does, another loop may run, and the timer within it.
class WindowsUser {
 public:
  // Sits down; who sat there before does so again when this one is gone.
  WindowsUser();
  WindowsUser(const WindowsUser&) = delete;
  WindowsUser& operator=(const WindowsUser&) = delete;
  ~WindowsUser();

  // The one who sits there now, or null.
  static WindowsUser* Current() { return current; }

  UserScript& Script() { return script_; }
  RefusedDialogs& Refused() { return refused_; }

  // The modeless dialog `dialog_id` that is shown, the topmost of those with that id, or null.
  // Lives as long as this object.
  ScriptedDialog* ShownDialog(int dialog_id);

  // Lets the user answer what stands above everything else, unless he is at it already.
  void AnswerNext();

  // Whether a modeless dialog stands open that is no part of another window.
  bool AnyWaiting();

 private:
  [[nodiscard]] HWND Unanswered() const;
  void Answer(HWND window);
  void AnswerMessage(HWND window, const ShownMessage& message);
  void AnswerFileDialog(HWND window);
  void AnswerFolderDialog(HWND window);
  void AnswerDialog(HWND window);
  void CloseEverything();

  // The user's side of the dialog `window`; null when no module's resources have it.
  DialogWindow* UserSideOf(HWND window);
  [[nodiscard]] std::vector<HWND> ShownModeless() const;

  static WindowsUser* current;

  WindowsUser* previous_;
  std::uintptr_t timer_ = 0;
  UserScript script_;
  RefusedDialogs refused_;
  std::vector<std::unique_ptr<DialogWindow>> dialogs_;  // all that there have been
  const FileChoice* choice_ = nullptr;                  // what is being entered into a file dialog
};

}  // namespace host
