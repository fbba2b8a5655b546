#include "platform/input_stream.h"

#include <windows.h>

#include <algorithm>
#include <limits>

#include "platform/interrupt.h"
#include "platform/windows/text.h"

namespace platform {
namespace {

// How long a wish to stop, or a byte, may go unnoticed.
constexpr DWORD kWaitMilliseconds = 10;

// The only stream that has a name here.
HANDLE StandardInput() { return GetStdHandle(STD_INPUT_HANDLE); }

// Whether reading will not wait: it may also meet the end, or an error. A console ends the waiting
// itself when the user interrupts the program.
bool IsReady(HANDLE input) {
  if (GetFileType(input) != FILE_TYPE_PIPE) return true;
  DWORD count = 0;
  return !PeekNamedPipe(input, nullptr, 0, nullptr, &count, nullptr) || count > 0;
}

bool IsEnd(DWORD error) {
  return error == ERROR_BROKEN_PIPE || error == ERROR_HANDLE_EOF ||
         error == ERROR_OPERATION_ABORTED;
}

}  // namespace

std::optional<InputStream> StreamNamed(const std::string& /*path*/) { return std::nullopt; }

bool IsTerminal(InputStream /*stream*/) {
  DWORD mode = 0;
  return GetConsoleMode(StandardInput(), &mode) != 0;
}

const char* KeysThatEndInput() { return "Ctrl-Z and Enter"; }

ReadBytes ReadSome(InputStream /*stream*/, char* buffer, std::size_t size) {
  constexpr std::size_t kMost = std::numeric_limits<DWORD>::max();
  const HANDLE input = StandardInput();
  while (!Interrupted()) {
    if (!IsReady(input)) {
      Sleep(kWaitMilliseconds);
      continue;
    }
    DWORD count = 0;
    const auto room = static_cast<DWORD>(std::min(size, kMost));
    if (ReadFile(input, buffer, room, &count, nullptr)) return {count, ""};
    const DWORD error = GetLastError();
    return {0, IsEnd(error) ? "" : ErrorText(error)};
  }
  return {};
}

}  // namespace platform
