#include "host/desktop/windows/folder_dialog_window.h"

#include <windows.h>
#include <commctrl.h>
#include <shlobj.h>

#include <filesystem>
#include <system_error>

#include "host/desktop/script_failure.h"
#include "host/desktop/windows/window_text.h"

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr char kTreeClass[] = "SysTreeView32";
constexpr int kTitleControl = 0x3742;

bool IsFolder(const fs::path& path) {
  std::error_code ignored;
  return fs::is_directory(path, ignored);
}

// Without a separator at its end, unless it is the root of a file system.
fs::path AbsoluteFolder(const std::string& folder) {
  fs::path path = fs::absolute(folder).lexically_normal().make_preferred();
  if (!path.has_filename() && path.has_relative_path()) path = path.parent_path();
  return path;
}

BOOL CALLBACK Compare(HWND window, LPARAM found) {
  if (ClassOf(window) != kTreeClass) return TRUE;
  *reinterpret_cast<HWND*>(found) = window;  // NOLINT(performance-no-int-to-ptr): made below
  return FALSE;
}

HWND FindTree(HWND dialog) {
  HWND tree = nullptr;
  EnumChildWindows(dialog, Compare, reinterpret_cast<LPARAM>(&tree));
  return tree;
}

[[noreturn]] void Refuse(const std::string& title, const std::string& reason) {
  throw ScriptError("The dialog \"" + title + "\" does not accept the choice: " + reason + ".");
}

bool HasSelection(HWND tree) { return SendMessageA(tree, TVM_GETNEXTITEM, TVGN_CARET, 0) != 0; }

// Returns whether the dialog has the folder. One that was just made may be missed at first.
bool Select(HWND dialog, const fs::path& folder) {
  constexpr int kAttempts = 5;
  HWND tree = FindTree(dialog);
  for (int attempt = 0; attempt == 0 || (attempt < kAttempts && !HasSelection(tree)); ++attempt) {
    SendMessageW(dialog, BFFM_SETSELECTIONW, TRUE, reinterpret_cast<LPARAM>(folder.c_str()));
  }
  return HasSelection(tree);
}

}  // namespace

bool FolderDialogWindow::IsOne(HWND window) {
  return IsDialogWindow(window) && GetDlgItem(window, kTitleControl) != nullptr &&
         FindTree(window) != nullptr;
}

std::string FolderDialogWindow::Title() const { return TextOf(GetDlgItem(window_, kTitleControl)); }

void FolderDialogWindow::Choose(const std::string& folder) {
  const fs::path path = AbsoluteFolder(folder);
  if (!IsFolder(path)) Refuse(Title(), folder + " is no folder");
  if (!Select(window_, path)) Refuse(Title(), folder + " is not shown");
  SendMessageA(GetDlgItem(window_, IDOK), BM_CLICK, 0, 0);
}

void FolderDialogWindow::Cancel() {
  SendMessageA(window_, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED),
               reinterpret_cast<LPARAM>(GetDlgItem(window_, IDCANCEL)));
}

}  // namespace host
