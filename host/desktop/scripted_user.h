#pragma once

#include <functional>
#include <string>

#include "host/desktop/file_choice.h"
#include "host/desktop/scripted_dialog.h"
#include "platform/message_box.h"

// A user whose hands are functions, for tests and for the command line.

namespace host {

// What a message box told the user, and what he answered.
struct UserMessage {
  std::string text;
  std::string caption;
  platform::MessageBoxStyle style = platform::MessageBoxStyle::kOk;
  int answer = platform::kMessageBoxFailed;  // a MessageBoxResult, once it has been answered
};

// What the user does. Any function may throw anything: the desktop catches it, lets the plug-in
// see a dialog that could not be created or was cancelled, or a message that failed, and hands it
// out by RethrowFailure when the plug-in is done.
struct ScriptedUser {
  // Uses an open dialog until it has ended.
  std::function<void(ScriptedDialog&)> answer_dialog{};

  // Returns the button pressed (a MessageBoxResult that the box has).
  std::function<int(const UserMessage&)> answer_message{};

  // Chooses files, or none to cancel.
  std::function<FileChoice(const ShownFileDialog&)> choose_files{};

  // Chooses a folder in the dialog of that title; the empty path cancels.
  std::function<std::string(const std::string& title)> choose_folder{};

  // Does the next thing while the plug-in waits for him: uses a modeless dialog, picks in a
  // viewport. Returns false when he has nothing left to do.
  std::function<bool()> act{};
};

}  // namespace host
