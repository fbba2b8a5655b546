#pragma once

#include <optional>
#include <string>

#include "platform/handles.h"
#include "platform/message_box.h"

// The system's message boxes, read and answered as a person would do it. The window is the
// system's.

namespace host {

// What an open message box shows.
struct ShownMessage {
  std::string text;
  std::string title;
  platform::MessageBoxStyle style = platform::MessageBoxStyle::kOk;
};

// What `window` shows when it is a message box of the system's; nothing when it is none.
[[nodiscard]] std::optional<ShownMessage> ReadMessageBox(HWND window);

// Presses the button `button` of the message box `window`; 0 makes the box fail without any.
void PressMessageButton(HWND window, int button);

}  // namespace host
