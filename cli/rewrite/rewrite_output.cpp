#include "cli/rewrite/rewrite_output.h"

#include "cli/common/failure.h"
#include "platform/output_stream.h"

namespace cli {

RewriteOutput::RewriteOutput(const std::string& path, bool replace) {
  if (path != "-") file_.emplace(path, replace);
}

std::size_t RewriteOutput::Deliver(const PreparedFile& file) {
  if (!file_) file.print([](std::string_view /*piece*/) { StopIfInterrupted(); });
  std::size_t size = 0;
  file.print([this, &size](std::string_view piece) {
    Append(piece);
    size += piece.size();
  });
  if (file_) file_->Deliver();
  return size;
}

void RewriteOutput::Append(std::string_view piece) {
  if (file_) return file_->Append(piece);
  StopIfInterrupted();
  const std::string error = platform::WriteToStandardOutput(piece);
  if (!error.empty()) throw Failure{ExitStatus::kInputOutput, {{"standard output", error, ""}}};
}

}  // namespace cli
