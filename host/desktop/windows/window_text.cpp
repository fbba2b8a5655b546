#include "host/desktop/windows/window_text.h"

#include <windows.h>

#include <array>

#include "platform/windows/text.h"

namespace host {

std::string TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  const int length = GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(length));
  return platform::Utf8FromWide(text);
}

void SetTextOf(HWND window, std::string_view text) {
  SetWindowTextW(window, platform::WideFromUtf8(std::string(text)).c_str());
}

std::string ClassOf(HWND window) {
  constexpr int kLongestName = 256;
  std::array<char, kLongestName + 1> name{};
  const int length = GetClassNameA(window, name.data(), static_cast<int>(name.size()));
  return std::string(name.data(), static_cast<std::size_t>(length));
}

bool IsDialogWindow(HWND window) { return ClassOf(window) == "#32770"; }

}  // namespace host
