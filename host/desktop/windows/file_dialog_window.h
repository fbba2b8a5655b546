#pragma once

#include "host/desktop/file_choice.h"
#include "platform/handles.h"

// The system's dialogs for files, used as a person would use them. Folders are chosen in
// folder_dialog_window.h. The window is the system's.

namespace host {

// The system's open dialog for files to open or to save.
class FileDialogWindow {
 public:
  explicit FileDialogWindow(HWND window);

  // Whether `window` is such a dialog.
  static bool IsOne(HWND window);

  [[nodiscard]] ShownFileDialog Shown() const;

  // Types the names and presses OK. The dialog may show message boxes meanwhile. Throws a
  // ScriptError when the dialog is open afterwards.
  void Choose(const FileChoice& choice);

  void Cancel();

 private:
  void Enter(const std::string& text);

  HWND window_;
  HWND name_;
};

}  // namespace host
