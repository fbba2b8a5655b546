#include "platform/log_file.h"

#include <windows.h>

namespace platform {
namespace {

// The line as text files hold it: also within, every line end is the system's.
std::string BytesOf(const std::string& line) {
  std::string bytes;
  for (const char character : line + '\n') {
    if (character == '\n') bytes += '\r';
    bytes += character;
  }
  return bytes;
}

class AppendedHandle final : public LogFile {
 public:
  explicit AppendedHandle(HANDLE file) : file_(file) {}
  AppendedHandle(const AppendedHandle&) = delete;
  AppendedHandle& operator=(const AppendedHandle&) = delete;
  ~AppendedHandle() override { CloseHandle(file_); }

  void AppendLine(const std::string& line) override {
    const std::string bytes = BytesOf(line);
    DWORD written = 0;
    WriteFile(file_, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
  }

 private:
  HANDLE file_;
};

}  // namespace

std::string LogFilePath() { return "C:\\Program Files\\Orvane\\OrvaneFileIO_Skelder.log"; }

std::unique_ptr<LogFile> LogFile::Open(const std::string& path) {
  const HANDLE file =
      CreateFileA(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                  OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return nullptr;
  return std::make_unique<AppendedHandle>(file);
}

}  // namespace platform
