#include "platform/terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

namespace platform {

bool ErrorIsTerminal() { return isatty(STDERR_FILENO) == 1; }

int ErrorColumns() {
  winsize size{};
  return ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}

Utf8Console::Utf8Console() = default;
Utf8Console::~Utf8Console() = default;

}  // namespace platform
