#pragma once

#include <memory>

#include "platform/log_file.h"
#include "platform/message_box.h"

// The one way from the plug-in to its user: every error, warning and question passes through here,
// to a message box over the host's active window or, in log mode, to the plug-in's log file. The
// texts belong to whoever reports; there is one sink per module.
namespace orvane {

class MessageSink {
 public:
  // Log mode off, no file open.
  MessageSink() = default;
  MessageSink(const MessageSink&) = delete;
  MessageSink& operator=(const MessageSink&) = delete;

  // Switches log mode: messages go to the file platform::LogFilePath() instead of the screen. The
  // file is opened with the first message in log mode and stays open until this object dies.
  void SetLogMode(bool log_mode) { log_mode_ = log_mode; }

  // Shows `message` under `title` with an OK button and waits until it is closed; in log mode
  // appends one line, `title`, a tab and `message`. A log that cannot be opened loses the message.
  // REQUIRES: neither text is null.
  void Report(const char* message, const char* title) noexcept;

  // Asks the question `message` under `title`. Returns whether the answer was Yes; in log mode
  // appends the line and returns true.
  // REQUIRES: neither text is null.
  [[nodiscard]] bool Ask(const char* message, const char* title) noexcept;

 private:
  static int Show(const char* message, const char* title, platform::MessageBoxStyle style);
  void Log(const char* message, const char* title);

  bool log_mode_ = false;
  std::unique_ptr<platform::LogFile> log_;
};

}  // namespace orvane
