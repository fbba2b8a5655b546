#include "host/desktop/pending_messages.h"

#include "platform/desktop.h"

namespace host {

bool HandlePendingMessages(bool awaited) {
  platform::Desktop* const desktop = platform::CurrentDesktop();
  return desktop == nullptr ? !awaited : desktop->ProcessPendingMessages(awaited);
}

}  // namespace host
