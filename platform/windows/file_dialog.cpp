#include "platform/file_dialog.h"

#include <windows.h>
#include <commdlg.h>
#include <shlobj.h>

#include <algorithm>
#include <array>
#include <cassert>
#include <cstring>
#include <string>

namespace platform {
namespace {

// What the system expects of a 64-bit program.
static_assert(sizeof(OPENFILENAMEA) == 152);

// The library of the common dialogs, loaded while one is shown.
class CommonDialogs {
 public:
  CommonDialogs()
      : library_(LoadLibraryExA("comdlg32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32)) {}
  CommonDialogs(const CommonDialogs&) = delete;
  CommonDialogs& operator=(const CommonDialogs&) = delete;
  ~CommonDialogs() {
    if (library_ != nullptr) FreeLibrary(library_);
  }

  bool Show(FileDialog::Kind kind, OPENFILENAMEA& dialog) const {
    using Function = BOOL(WINAPI*)(OPENFILENAMEA*);
    if (library_ == nullptr) return false;
    const char* const name =
        kind == FileDialog::Kind::kOpen ? "GetOpenFileNameA" : "GetSaveFileNameA";
    const auto function =
        reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library_, name)));
    return function != nullptr && function(&dialog) != 0;
  }

 private:
  HMODULE library_;
};

// Keeps the process's current folder: the common dialogs make it the one that the user chose from,
// and it is not the module's.
class KeptCurrentFolder {
 public:
  KeptCurrentFolder() : folder_(GetCurrentDirectoryW(0, nullptr), L'\0') {
    GetCurrentDirectoryW(static_cast<DWORD>(folder_.size()), folder_.data());
  }
  KeptCurrentFolder(const KeptCurrentFolder&) = delete;
  KeptCurrentFolder& operator=(const KeptCurrentFolder&) = delete;
  ~KeptCurrentFolder() { SetCurrentDirectoryW(folder_.c_str()); }

 private:
  std::wstring folder_;  // with its NUL
};

DWORD FlagsOf(const FileDialog& dialog) {
  DWORD flags = 0;
  if (dialog.several) flags |= OFN_ALLOWMULTISELECT | OFN_EXPLORER;
  if (dialog.file_must_exist) flags |= OFN_FILEMUSTEXIST;
  if (dialog.folder_must_exist) flags |= OFN_PATHMUSTEXIST;
  if (dialog.ask_before_replacing) flags |= OFN_OVERWRITEPROMPT;
  if (dialog.hide_read_only_box) flags |= OFN_HIDEREADONLY;
  return flags;
}

// Pairs of texts, each ended by a NUL, and one more at the end.
std::string FilterOf(const FileDialog& dialog) {
  return std::string(dialog.filter_name) + '\0' + dialog.filter_pattern + '\0';
}

// The system ends one chosen file with one NUL.
void EndChoice(char* buffer, std::size_t size, std::size_t name_offset) {
  const bool is_several = name_offset > 0 && buffer[name_offset - 1] == '\0';
  const std::size_t end = std::strlen(buffer);
  if (!is_several && end + 1 < size) buffer[end + 1] = '\0';
}

// Frees what the shell handed out to name a folder.
class ShellItem {
 public:
  explicit ShellItem(ITEMIDLIST* item) : item_(item) {}
  ShellItem(const ShellItem&) = delete;
  ShellItem& operator=(const ShellItem&) = delete;
  ~ShellItem() { CoTaskMemFree(item_); }

  // Its path, empty when it has none.
  std::string Path() const {
    std::array<char, MAX_PATH> path{};
    return item_ != nullptr && SHGetPathFromIDListA(item_, path.data()) != 0 ? path.data() : "";
  }

 private:
  ITEMIDLIST* item_;
};

}  // namespace

bool ChooseFiles(const FileDialog& dialog, char* buffer, std::size_t size,
                 std::size_t& name_offset) {
  assert(buffer != nullptr && size > 0);
  const std::string filter = FilterOf(dialog);
  buffer[0] = '\0';
  OPENFILENAMEA open_file{};
  open_file.lStructSize = sizeof(open_file);
  open_file.hwndOwner = dialog.owner;
  open_file.lpstrFilter = filter.c_str();
  open_file.lpstrFile = buffer;
  open_file.nMaxFile = static_cast<DWORD>(size);
  open_file.lpstrInitialDir = *dialog.initial_folder == '\0' ? nullptr : dialog.initial_folder;
  open_file.lpstrTitle = dialog.title;
  open_file.Flags = FlagsOf(dialog);
  open_file.lpstrDefExt = dialog.default_extension;
  const KeptCurrentFolder current_folder;
  if (!CommonDialogs().Show(dialog.kind, open_file)) return false;
  name_offset = open_file.nFileOffset;
  EndChoice(buffer, size, name_offset);
  return true;
}

bool ChooseFolder(HWND owner, const char* title, char* buffer, std::size_t size) {
  assert(buffer != nullptr && size > 0);
  BROWSEINFOA browse{};
  browse.hwndOwner = owner;
  browse.lpszTitle = title;
  browse.ulFlags = BIF_RETURNONLYFSDIRS;
  const std::string path = ShellItem(SHBrowseForFolderA(&browse)).Path();
  if (path.empty() || path.size() >= size) return false;
  std::memcpy(buffer, path.c_str(), path.size() + 1);
  return true;
}

char PathSeparator() { return '\\'; }

}  // namespace platform
