#pragma once

#include <string>

#include "platform/handles.h"

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
