#include "host/desktop/pending_messages.h"

#include <windows.h>

#include "host/desktop/windows/window_text.h"
#include "host/desktop/windows/windows_user.h"

namespace host {
namespace {

// The dialog that `window` is or is part of, or null.
HWND DialogOf(HWND window) {
  for (; window != nullptr; window = GetAncestor(window, GA_PARENT)) {
    if (IsDialogWindow(window)) return window;
  }
  return nullptr;
}

bool IsTimerAlone(const MSG& message) {
  return message.message == WM_TIMER && message.hwnd == nullptr;
}

void Handle(MSG& message) {
  const HWND dialog = DialogOf(message.hwnd);
  if (dialog != nullptr && IsDialogMessageW(dialog, &message) != 0) return;
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

// Handles the messages that wait in this thread's queue, those of modeless dialogs as such. What
// happens in a timer without a window is left to modal dialogs.
void HandleQueuedMessages() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
    if (message.message == WM_QUIT) {  // is for whoever started the thread
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    if (!IsTimerAlone(message)) Handle(message);
  }
}

}  // namespace

bool HandlePendingMessages(bool awaited) {
  HandleQueuedMessages();
  WindowsUser* const user = WindowsUser::Current();
  if (user == nullptr) return !awaited;
  if (user->Script().Failure().HasHappened()) return false;
  const bool stands_open = user->AnyWaiting();
  return (!awaited && !stands_open) || user->Script().Act();
}

}  // namespace host
