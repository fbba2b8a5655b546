#include "platform/program.h"

#include <windows.h>

#include "platform/windows/text.h"

namespace platform {

std::string ProgramFolder() {
  constexpr std::size_t kLongestPath = 32768;
  std::wstring path(kLongestPath, L'\0');
  const DWORD length = GetModuleFileNameW(nullptr, path.data(), kLongestPath);
  path.resize(length);
  const std::size_t end = path.find_last_of(L'\\');
  return end == std::wstring::npos ? "." : Utf8FromWide(path.substr(0, end));
}

}  // namespace platform
