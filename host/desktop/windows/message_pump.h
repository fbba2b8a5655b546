#pragma once

// What is waiting in a thread's queue, outside of any modal loop.

namespace host {

// Handles the messages that wait in this thread's queue, those of modeless dialogs as such. What
// happens in a timer without a window is left to modal dialogs.
void HandleQueuedMessages();

}  // namespace host
