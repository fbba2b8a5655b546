#pragma once

// Message boxes: how a text reaches the user and how a yes/no question is answered.

namespace platform {

// The buttons of a message box. The values are the system's own style values.
enum class MessageBoxStyle : unsigned { kOk = 0, kYesNo = 4 };

// Which button closed a message box. The values are the system's own results.
enum MessageBoxResult : int {
  kMessageBoxFailed = 0,
  kMessageBoxOk = 1,
  kMessageBoxYes = 6,
  kMessageBoxNo = 7
};

// Shows `text` under the title `caption`, without an icon, over the active window of the calling
// thread, and waits until the user closes it.
// Returns the button that closed it (one of MessageBoxResult).
int ShowMessageBox(const char* text, const char* caption, MessageBoxStyle style);

}  // namespace platform
