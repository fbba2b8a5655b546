#include "host/desktop/pending_messages.h"

#include "host/desktop/windows/message_pump.h"
#include "host/desktop/windows/windows_user.h"

namespace host {

bool HandlePendingMessages(bool awaited) {
  HandleQueuedMessages();
  WindowsUser* const user = WindowsUser::Current();
  if (user == nullptr) return !awaited;
  if (user->Script().Failure().HasHappened()) return false;
  const bool stands_open = user->AnyWaiting();
  return (!awaited && !stands_open) || user->Script().Act();
}

}  // namespace host
