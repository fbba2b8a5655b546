#include "platform/output_file.h"

#include <windows.h>
#include <fcntl.h>
#include <io.h>

#include <algorithm>
#include <cassert>
#include <cstring>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/abandoned.h"
#include "platform/aside_name.h"
#include "platform/windows/text.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

constexpr char kReadOnly[] = "it is read-only";

std::string ErrorNumberText(int error) { return std::generic_category().message(error); }

HANDLE HandleOf(int file) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): that is how the C library keeps handles
  return reinterpret_cast<HANDLE>(_get_osfhandle(file));
}

DWORD AttributesOf(const std::wstring& path) { return GetFileAttributesW(path.c_str()); }

bool Exists(const std::wstring& path) { return AttributesOf(path) != INVALID_FILE_ATTRIBUTES; }

bool IsFolder(const std::wstring& path) {
  return Exists(path) && (AttributesOf(path) & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

HANDLE OpenForAttributes(const std::wstring& path) {
  constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  return CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES, kShareAll, nullptr, OPEN_EXISTING, 0,
                     nullptr);
}

std::string FollowLink(const std::string& path) {
  const std::wstring name = WideFromUtf8(path);
  if (!Exists(name) || (AttributesOf(name) & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return path;
  const HANDLE file = OpenForAttributes(name);
  if (file == INVALID_HANDLE_VALUE) return path;
  constexpr DWORD kLongestPath = 32768;
  std::wstring target(kLongestPath, L'\0');
  const DWORD length = GetFinalPathNameByHandleW(file, target.data(), kLongestPath, 0);
  CloseHandle(file);
  target.resize(std::min(length, kLongestPath));
  return target.empty() ? path : Utf8FromWide(target);
}

std::wstring FolderOf(const std::string& path) {
  const fs::path folder = fs::path(WideFromUtf8(path)).parent_path();
  return folder.empty() ? L"." : folder.wstring();
}

// Nobody else may remove or rename it as long as it is open: what can be removed belongs to a
// process that was killed.
int OpenToWrite(const std::wstring& path, DWORD disposition) {
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE | DELETE, FILE_SHARE_READ, nullptr,
                                  disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return -1;
  return _open_osfhandle(reinterpret_cast<std::intptr_t>(file), _O_BINARY);
}

// Gives the open file a new name, in one step.
bool Rename(HANDLE file, const std::wstring& to, bool replace) {
  std::vector<std::byte> bytes(sizeof(FILE_RENAME_INFO) + to.size() * sizeof(wchar_t));
  auto& rename = *reinterpret_cast<FILE_RENAME_INFO*>(bytes.data());
  rename.ReplaceIfExists = replace ? TRUE : FALSE;
  rename.FileNameLength = static_cast<DWORD>(to.size() * sizeof(wchar_t));
  std::memcpy(rename.FileName, to.data(), rename.FileNameLength);
  return SetFileInformationByHandle(file, FileRenameInfo, &rename,
                                    static_cast<DWORD>(bytes.size())) != 0;
}

}  // namespace

OutputFile::OutputFile(const std::string& path, bool replace)
    : path_(FollowLink(path)), replace_(replace) {}

OutputFile::~OutputFile() {
  Close();
  if (!aside_.empty()) DeleteFileW(WideFromUtf8(aside_).c_str());
}

bool OutputFile::IsTaken() const {
  const std::wstring path = WideFromUtf8(path_);
  return !replace_ && Exists(path) && !IsFolder(path);
}

bool OutputFile::IsReadOnly() const {
  const std::wstring path = WideFromUtf8(path_);
  return Exists(path) && !IsFolder(path) && (AttributesOf(path) & FILE_ATTRIBUTE_READONLY) != 0;
}

std::string OutputFile::WhyImpossible() const {
  const std::wstring path = WideFromUtf8(path_);
  if (IsFolder(path)) return ErrorNumberText(EISDIR);
  if (IsReadOnly()) return kReadOnly;
  if (Exists(path) && !replace_) return ErrorNumberText(EEXIST);
  const std::wstring name = FolderOf(path_);
  constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const HANDLE folder = CreateFileW(name.c_str(), FILE_ADD_FILE, kShareAll, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (folder == INVALID_HANDLE_VALUE) return Utf8FromWide(name) + ": " + LastErrorText();
  CloseHandle(folder);
  return IsFolder(name) ? "" : Utf8FromWide(name) + ": " + ErrorNumberText(ENOTDIR);
}

std::string OutputFile::Folder() const { return Utf8FromWide(FolderOf(path_)); }

std::string OutputFile::Append(std::string_view bytes) {
  std::string error = aside_.empty() ? CreateAside() : "";
  if (error.empty()) error = FillAside(bytes);
  return error;
}

std::string OutputFile::Write(std::string_view bytes) {
  assert(aside_.empty() && file_ < 0);
  std::string error = Append(bytes);
  if (error.empty()) error = Finish();
  return error;
}

std::string OutputFile::TakeOver(const std::string& path) {
  assert(aside_.empty() && file_ < 0);
  file_ = OpenToWrite(WideFromUtf8(path), OPEN_EXISTING);
  if (file_ < 0) return LastErrorText();
  aside_ = path;
  return Finish();
}

std::string OutputFile::CreateAside() {
  const fs::path folder = FolderOf(path_);
  RemoveAbandonedFiles(Utf8FromWide(folder.wstring()));
  for (int attempt = 0; aside_.empty(); ++attempt) {
    const fs::path name = folder / AsideName(GetCurrentProcessId(), attempt);
    file_ = OpenToWrite(name.wstring(), CREATE_NEW);
    if (file_ >= 0) {
      aside_ = Utf8FromWide(name.wstring());
    } else if (GetLastError() != ERROR_FILE_EXISTS) {
      return LastErrorText();
    }
  }
  return "";
}

std::string OutputFile::FillAside(std::string_view bytes) {
  constexpr std::size_t kMostAtOnce = std::size_t{1} << 30U;
  while (!bytes.empty()) {
    DWORD written = 0;
    const auto size = static_cast<DWORD>(std::min(bytes.size(), kMostAtOnce));
    if (WriteFile(HandleOf(file_), bytes.data(), size, &written, nullptr) == 0) {
      return LastErrorText();
    }
    bytes.remove_prefix(written);
  }
  return "";
}

std::string OutputFile::Finish() const {
  return FlushFileBuffers(HandleOf(file_)) != 0 ? "" : LastErrorText();
}

std::string OutputFile::Deliver() {
  assert(!aside_.empty());
  if (replace_ && IsReadOnly()) return kReadOnly;
  std::error_code error;
  const fs::path place = fs::absolute(WideFromUtf8(path_), error);
  if (error) return error.message();
  if (!Rename(HandleOf(file_), place.wstring(), replace_)) return LastErrorText();
  aside_.clear();
  Close();
  return "";
}

// What was written is on the disk by then, so that nothing is lost with a failure to close.
void OutputFile::Close() {
  if (file_ >= 0) _close(file_);
  file_ = -1;
}

}  // namespace platform
