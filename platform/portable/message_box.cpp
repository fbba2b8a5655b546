#include "platform/message_box.h"

#include "platform/desktop.h"

namespace platform {

int ShowMessageBox(const char* text, const char* caption, MessageBoxStyle style) {
  Desktop* const desktop = CurrentDesktop();
  return desktop == nullptr ? kMessageBoxFailed : desktop->ShowMessage(text, caption, style);
}

}  // namespace platform
