#include "plugin/services/message_sink.h"

#include <cassert>
#include <string>

#include "sdk/core/cstr.h"

namespace orvane {

void MessageSink::Report(const char* message, const char* title) noexcept {
  assert(message != nullptr && title != nullptr);
  try {
    if (log_mode_) {
      Log(message, title);
    } else {
      Show(message, title, platform::MessageBoxStyle::kOk);
    }
  } catch (...) {
    // Without memory the message is lost.
  }
}

bool MessageSink::Ask(const char* message, const char* title) noexcept {
  assert(message != nullptr && title != nullptr);
  try {
    if (!log_mode_) {
      return Show(message, title, platform::MessageBoxStyle::kYesNo) == platform::kMessageBoxYes;
    }
    // Intended: nobody is there to ask, so what was asked for is done.
    Log(message, title);
    return true;
  } catch (...) {
    return log_mode_;
  }
}

int MessageSink::Show(const char* message, const char* title, platform::MessageBoxStyle style) {
  const CStr text(message);
  const CStr caption(title);
  return platform::ShowMessageBox(text, caption, style);
}

void MessageSink::Log(const char* message, const char* title) {
  if (log_ == nullptr) log_ = platform::LogFile::Open(platform::LogFilePath());
  if (log_ == nullptr) return;
  log_->AppendLine(std::string(title) + '\t' + message);
}

}  // namespace orvane
