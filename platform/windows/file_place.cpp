#include "platform/file_place.h"

#include <windows.h>

#include <filesystem>
#include <system_error>

#include "platform/windows/text.h"

namespace platform {

namespace fs = std::filesystem;

// Made absolute first, because the standard library leaves a relative path relative when nothing of
// it exists.
std::string PlaceOf(const std::string& path) {
  std::error_code error;
  const fs::path absolute = fs::absolute(WideFromUtf8(path), error);
  const fs::path place = fs::weakly_canonical(absolute, error);
  std::wstring text = (error ? absolute.lexically_normal() : place).wstring();
  CharUpperBuffW(text.data(), static_cast<DWORD>(text.size()));
  return Utf8FromWide(text);
}

}  // namespace platform
