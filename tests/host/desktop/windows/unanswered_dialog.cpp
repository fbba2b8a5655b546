// Shows a message that nobody answers.

#include <windows.h>

#include "host/desktop/top_level_window.h"

int main() {
  const host::TopLevelWindow owner;
  return MessageBoxA(owner.Handle(), "Is anybody there?", "A Question", MB_YESNO);
}
