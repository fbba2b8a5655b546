#include "platform/abandoned.h"

#include <windows.h>
#include <aclapi.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>

#include "platform/aside_name.h"
#include "platform/windows/pipe.h"
#include "platform/windows/text.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

struct WindowsAsideKind {
  std::optional<std::uint32_t> (*process_of)(std::string_view name);
  DWORD open_flags;  // to open what is there itself
  bool is_folder;
};

bool IsGone(std::uint32_t process) {
  if (process == GetCurrentProcessId()) return true;  // an earlier one of that number, or else held
  const OwnedHandle handle(OpenProcess(SYNCHRONIZE, FALSE, process));
  if (handle.Get() == nullptr) return GetLastError() == ERROR_INVALID_PARAMETER;
  return WaitForSingleObject(handle.Get(), 0) == WAIT_OBJECT_0;
}

// Whether `owner` is the user of this process, or who owns what it makes: both may be different for
// administrators.
bool IsThisUser(PSID owner) {
  HANDLE opened = nullptr;
  if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &opened) == 0) return false;
  const OwnedHandle token(opened);
  alignas(TOKEN_USER) std::array<std::byte, sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE> bytes{};
  const auto is_owner = [&](TOKEN_INFORMATION_CLASS what) {
    DWORD size = 0;
    // Both kinds of answer begin with the pointer.
    return GetTokenInformation(token.Get(), what, bytes.data(), DWORD{sizeof(bytes)}, &size) != 0 &&
           EqualSid(owner, reinterpret_cast<const TOKEN_OWNER*>(bytes.data())->Owner) != 0;
  };
  return is_owner(TokenUser) || is_owner(TokenOwner);
}

bool BelongsToThisUser(HANDLE file) {
  PSID owner = nullptr;
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  const DWORD error = GetSecurityInfo(file, SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION, &owner,
                                      nullptr, nullptr, nullptr, &descriptor);
  const bool belongs = error == ERROR_SUCCESS && owner != nullptr && IsThisUser(owner);
  LocalFree(descriptor);
  return belongs;
}

bool IsAsMade(HANDLE file, const WindowsAsideKind& kind) {
  constexpr DWORD kNotGiven = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN |
                              FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_REPARSE_POINT;
  BY_HANDLE_FILE_INFORMATION about{};
  if (GetFileInformationByHandle(file, &about) == 0) return false;
  const bool is_folder = (about.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  return is_folder == kind.is_folder && (about.dwFileAttributes & kNotGiven) == 0 &&
         (is_folder || about.nNumberOfLinks == 1);
}

// Who writes has it open in a way that lets nobody else remove it, on other machines too.
bool IsAbandoned(const fs::path& path, const WindowsAsideKind& kind) {
  constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const HANDLE opened =
      CreateFileW(path.c_str(), DELETE | READ_CONTROL | FILE_READ_ATTRIBUTES, kShareAll, nullptr,
                  OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT | kind.open_flags, nullptr);
  if (opened == INVALID_HANDLE_VALUE) return false;
  const OwnedHandle file(opened);
  return IsAsMade(file.Get(), kind) && BelongsToThisUser(file.Get());
}

void RemoveAbandonedIn(const std::string& folder, const WindowsAsideKind& kind) {
  std::error_code error;
  fs::directory_iterator entry(WideFromUtf8(folder), error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    const auto process = kind.process_of(Utf8FromWide(entry->path().filename().wstring()));
    if (!process || !IsGone(*process) || !IsAbandoned(entry->path(), kind)) continue;
    std::error_code ignored;
    fs::remove_all(entry->path(), ignored);
  }
}

}  // namespace

void RemoveAbandonedFiles(const std::string& folder) {
  RemoveAbandonedIn(folder, {ProcessOfAsideName, 0, false});
}

void RemoveAbandonedFolders(const std::string& folder) {
  RemoveAbandonedIn(folder, {ProcessOfScratchFolderName, FILE_FLAG_BACKUP_SEMANTICS, true});
}

}  // namespace platform
