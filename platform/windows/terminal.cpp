#include "platform/terminal.h"

#include <windows.h>

namespace platform {

bool ErrorIsTerminal() {
  DWORD mode = 0;
  return GetConsoleMode(GetStdHandle(STD_ERROR_HANDLE), &mode) != 0;
}

int ErrorColumns() {
  CONSOLE_SCREEN_BUFFER_INFO screen{};
  if (GetConsoleScreenBufferInfo(GetStdHandle(STD_ERROR_HANDLE), &screen) == 0) return 0;
  return screen.srWindow.Right - screen.srWindow.Left + 1;
}

Utf8Console::Utf8Console() : former_(GetConsoleOutputCP()) {
  if (former_ != 0) SetConsoleOutputCP(CP_UTF8);
}

Utf8Console::~Utf8Console() {
  if (former_ != 0) SetConsoleOutputCP(former_);
}

}  // namespace platform
