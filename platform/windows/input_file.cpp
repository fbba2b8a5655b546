#include "platform/input_file.h"

#include <windows.h>

#include <system_error>

#include "platform/windows/text.h"

namespace platform {
namespace {

bool IsFolder(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace

std::string WhyUnreadable(const std::string& path) {
  const std::wstring name = WideFromUtf8(path);
  if (IsFolder(name)) return std::generic_category().message(EISDIR);
  const HANDLE file = CreateFileW(name.c_str(), GENERIC_READ,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return LastErrorText();
  const bool is_regular = GetFileType(file) == FILE_TYPE_DISK;
  CloseHandle(file);
  return is_regular ? "" : "Not a regular file";
}

}  // namespace platform
