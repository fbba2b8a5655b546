#include "platform/windows/text.h"

#include <windows.h>

#include <system_error>

namespace platform {

std::wstring WideFromUtf8(const std::string& text) {
  const int size = static_cast<int>(text.size());
  const int length = MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), length);
  return wide;
}

std::string Utf8FromWide(const std::wstring& text) {
  const int length = static_cast<int>(text.size());
  const int size =
      WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), length, utf8.data(), size, nullptr, nullptr);
  return utf8;
}

std::string ErrorText(unsigned long number) {
  const std::error_code error(static_cast<int>(number), std::system_category());
  const std::error_condition condition = error.default_error_condition();
  return condition.category() == std::generic_category() ? condition.message() : error.message();
}

std::string LastErrorText() { return ErrorText(GetLastError()); }

}  // namespace platform
