#include "host/desktop/windows/file_dialog_window.h"

#include <windows.h>
#include <dlgs.h>

#include <algorithm>
#include <filesystem>

#include "host/desktop/script_failure.h"
#include "host/desktop/windows/thread_windows.h"
#include "host/desktop/windows/window_text.h"

namespace host {
namespace {

namespace fs = std::filesystem;

// The search for a control, however deep.
struct ControlSearch {
  int id;
  const char* window_class;
  HWND found = nullptr;
};

BOOL CALLBACK Compare(HWND window, LPARAM parameter) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): made below
  auto& search = *reinterpret_cast<ControlSearch*>(parameter);
  if (GetDlgCtrlID(window) != search.id || ClassOf(window) != search.window_class) return TRUE;
  search.found = window;
  return FALSE;
}

HWND FindControl(HWND dialog, int id, const char* window_class) {
  ControlSearch search{id, window_class};
  EnumChildWindows(dialog, Compare, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

// Where the user types names: by the versions of the dialog, old ones first.
HWND FindNameEdit(HWND dialog) {
  constexpr int kEditOfNewSaveDialogs = 1001;
  for (const int id : {edt1, cmb13, kEditOfNewSaveDialogs}) {
    const HWND edit = FindControl(dialog, id, "Edit");
    if (edit != nullptr) return edit;
  }
  return nullptr;
}

HWND FindFilter(HWND dialog) { return FindControl(dialog, cmb1, "ComboBox"); }

fs::path PathOf(const std::string& typed) { return fs::path(typed).make_preferred(); }

[[noreturn]] void Refuse(HWND dialog, const std::string& reason) {
  throw ScriptError("The dialog \"" + TextOf(dialog) + "\" does not accept the choice: " + reason +
                    ".");
}

// The folder that all of `choice` lies in; empty for the one that the dialog shows.
fs::path FolderOf(HWND dialog, const FileChoice& choice) {
  const fs::path folder = PathOf(choice.paths.front()).parent_path();
  const bool is_shared = std::all_of(
      choice.paths.begin(), choice.paths.end(),
      [&folder](const std::string& typed) { return PathOf(typed).parent_path() == folder; });
  if (!is_shared) Refuse(dialog, "all files have to lie in one folder");
  return folder;
}

std::string QuotedNames(const FileChoice& choice) {
  std::string names;
  for (const std::string& typed : choice.paths) {
    names += (names.empty() ? "\"" : " \"") + PathOf(typed).filename().string() + '"';
  }
  return names;
}

}  // namespace

FileDialogWindow::FileDialogWindow(HWND window) : window_(window), name_(FindNameEdit(window)) {}

bool FileDialogWindow::IsOne(HWND window) {
  return IsDialogWindow(window) && FindFilter(window) != nullptr && FindNameEdit(window) != nullptr;
}

ShownFileDialog FileDialogWindow::Shown() const {
  return {TextOf(window_), TextOf(FindFilter(window_))};
}

void FileDialogWindow::Choose(const FileChoice& choice) {
  if (choice.paths.size() == 1) {
    Enter(PathOf(choice.paths.front()).string());
  } else {
    const fs::path folder = FolderOf(window_, choice);
    if (!folder.empty()) Enter(folder.string());
    Enter(QuotedNames(choice));
  }
  if (IsWindow(window_) != 0 && IsShown(window_)) Refuse(window_, "it stays open");
}

void FileDialogWindow::Cancel() {
  SendMessageA(window_, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED),
               reinterpret_cast<LPARAM>(GetDlgItem(window_, IDCANCEL)));
}

void FileDialogWindow::Enter(const std::string& text) {
  SetTextOf(name_, text);
  SendMessageA(GetDlgItem(window_, IDOK), BM_CLICK, 0, 0);
}

}  // namespace host
