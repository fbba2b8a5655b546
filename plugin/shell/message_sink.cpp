#include "plugin/shell/message_sink.h"

#include <string>

#include "platform/message_box.h"
#include "sdk/core/cstr.h"

namespace orvane {

void MessageSink::Report(const char* message, const char* title) {
  if (log_mode_) {
    Log(message, title);
    return;
  }
  const CStr text(message);
  const CStr caption(title);
  platform::ShowMessageBox(text, caption, platform::MessageBoxStyle::kOk);
}

bool MessageSink::Ask(const char* message, const char* title) {
  if (log_mode_) {
    Log(message, title);
    return true;
  }
  const CStr text(message);
  const CStr caption(title);
  return platform::ShowMessageBox(text, caption, platform::MessageBoxStyle::kYesNo) ==
         platform::kMessageBoxYes;
}

void MessageSink::Log(const char* message, const char* title) {
  if (log_ == nullptr) log_ = platform::LogFile::Open(platform::LogFilePath());
  if (log_ == nullptr) return;
  log_->AppendLine(std::string(title) + '\t' + message);
}

}  // namespace orvane
