#include "platform/scratch_folder.h"

#include <windows.h>
#include <fcntl.h>
#include <io.h>

#include <filesystem>
#include <system_error>

#include "platform/abandoned.h"
#include "platform/aside_name.h"
#include "platform/windows/text.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

// As long as the folder is open like this, nobody else may remove it.
int HoldFolder(const std::wstring& path) {
  const HANDLE folder = CreateFileW(
      path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
      FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
  if (folder == INVALID_HANDLE_VALUE) return -1;
  return _open_osfhandle(reinterpret_cast<std::intptr_t>(folder), _O_RDONLY);
}

}  // namespace

ScratchFolder::ScratchFolder(const std::string& parent) {
  std::error_code error;
  const fs::path folder = fs::canonical(WideFromUtf8(parent), error);
  if (!error && !fs::is_directory(folder, error) && !error) {
    error = std::make_error_code(std::errc::not_a_directory);
  }
  if (error) {
    error_ = error.message();
    return;
  }
  RemoveAbandonedFolders(Utf8FromWide(folder.wstring()));
  for (int attempt = 0; path_.empty() && error_.empty(); ++attempt) {
    const fs::path path = folder / ScratchFolderName(GetCurrentProcessId(), attempt);
    if (Make(Utf8FromWide(path.wstring()))) path_ = Utf8FromWide(path.wstring());
  }
}

ScratchFolder::~ScratchFolder() {
  if (lock_ >= 0) _close(lock_);
  std::error_code ignored;  // nobody is there to be told
  if (!path_.empty()) fs::remove_all(WideFromUtf8(path_), ignored);
}

// Returns false, perhaps with an error, when the folder was not made, or when somebody took it for
// an abandoned one before it was held.
bool ScratchFolder::Make(const std::string& path) {
  const std::wstring name = WideFromUtf8(path);
  if (CreateDirectoryW(name.c_str(), nullptr) == 0) {
    if (GetLastError() != ERROR_ALREADY_EXISTS) error_ = LastErrorText();
    return false;
  }
  lock_ = HoldFolder(name);
  if (lock_ < 0 && GetLastError() != ERROR_FILE_NOT_FOUND) error_ = LastErrorText();
  return lock_ >= 0;
}

}  // namespace platform
