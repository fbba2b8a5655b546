#include "platform/file_viewer.h"

#include <windows.h>
#include <shellapi.h>

#include <cstdint>
#include <system_error>

#include "platform/windows/text.h"

namespace platform {

bool HasDesktop() { return true; }

std::string ShowFile(const std::string& path) {
  constexpr std::intptr_t kLargestError = 32;
  const HINSTANCE shown =
      ShellExecuteW(nullptr, L"open", WideFromUtf8(path).c_str(), nullptr, nullptr, SW_SHOWNORMAL);
  if (reinterpret_cast<std::intptr_t>(shown) > kLargestError) return "";
  return std::system_category().message(static_cast<int>(GetLastError()));
}

}  // namespace platform
