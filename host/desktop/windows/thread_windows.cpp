#include "host/desktop/windows/thread_windows.h"

#include <windows.h>

namespace host {
namespace {

BOOL CALLBACK Collect(HWND window, LPARAM windows) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): made below
  if (IsShown(window)) reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
  return TRUE;
}

}  // namespace

std::vector<HWND> ShownWindows() {
  std::vector<HWND> windows;
  EnumThreadWindows(GetCurrentThreadId(), Collect, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

std::vector<HWND> DialogsWithin(HWND window) {
  std::vector<HWND> dialogs;
  HWND dialog = nullptr;
  while ((dialog = FindWindowExA(window, dialog, "#32770", nullptr)) != nullptr) {
    dialogs.push_back(dialog);
  }
  return dialogs;
}

bool IsShown(HWND window) { return (GetWindowLongA(window, GWL_STYLE) & WS_VISIBLE) != 0; }

}  // namespace host
