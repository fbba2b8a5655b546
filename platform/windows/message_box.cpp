#include "platform/message_box.h"

#include <windows.h>

namespace platform {

int ShowMessageBox(const char* text, const char* caption, MessageBoxStyle style) {
  return MessageBoxA(GetActiveWindow(), text, caption, static_cast<UINT>(style));
}

}  // namespace platform
