#include "platform/output_stream.h"

#include <windows.h>

#include <algorithm>

#include "platform/windows/text.h"

namespace platform {

std::string WriteToStandardOutput(std::string_view bytes) {
  constexpr std::size_t kMost = std::size_t{1} << 20U;  // pipes take no more than they have room
  const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
  while (!bytes.empty()) {
    DWORD count = 0;
    const auto size = static_cast<DWORD>(std::min(bytes.size(), kMost));
    if (!WriteFile(output, bytes.data(), size, &count, nullptr)) return ErrorText(GetLastError());
    bytes.remove_prefix(count);
  }
  return {};
}

}  // namespace platform
