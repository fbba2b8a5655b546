#pragma once

#include <string>

#include "platform/handles.h"

// The system's dialog for folders, used as a person would use it. Files are chosen in
// file_dialog_window.h. The window is the system's.

namespace host {

// The system's open dialog in which a folder is chosen.
class FolderDialogWindow {
 public:
  explicit FolderDialogWindow(HWND window) : window_(window) {}

  // Whether `window` is such a dialog.
  static bool IsOne(HWND window);

  // What it asks for, which stands above the folders.
  [[nodiscard]] std::string Title() const;

  // Selects `folder` and presses OK. Throws a ScriptError when there is no such folder.
  void Choose(const std::string& folder);

  void Cancel();

 private:
  HWND window_;
};

}  // namespace host
