#include "cli/common/file_bytes.h"

#include <optional>

#include "cli/common/failure.h"
#include "formats/text/files.h"
#include "platform/input_file.h"

namespace cli {

std::string FileBytes(const std::string& file) {
  std::string reason = platform::WhyUnreadable(file);
  if (reason.empty()) {
    std::optional<std::string> bytes = orvane::ReadFileBytes(file);
    if (bytes) return *std::move(bytes);
    reason = "could not be read to its end";
  }
  throw Failure{ExitStatus::kInputOutput, {{file, reason, ""}}};
}

}  // namespace cli
