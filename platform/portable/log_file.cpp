#include "platform/log_file.h"

#include <filesystem>
#include <fstream>
#include <system_error>
#include <utility>

#include "platform/portable/user_file.h"

namespace platform {
namespace {

class AppendedStream final : public LogFile {
 public:
  explicit AppendedStream(std::ofstream stream) : stream_(std::move(stream)) {}

  void AppendLine(const std::string& line) override { stream_ << line + '\n' << std::flush; }

 private:
  std::ofstream stream_;
};

}  // namespace

std::string LogFilePath() {
  return UserFile("XDG_STATE_HOME", ".local/state", "OrvaneFileIO_Skelder.log");
}

std::unique_ptr<LogFile> LogFile::Open(const std::string& path) {
  std::error_code ignored;  // a folder that cannot be made shows when the file is opened
  std::filesystem::create_directories(std::filesystem::path(path).parent_path(), ignored);
  std::ofstream stream(path, std::ios::app);
  if (!stream) return nullptr;
  return std::make_unique<AppendedStream>(std::move(stream));
}

}  // namespace platform
