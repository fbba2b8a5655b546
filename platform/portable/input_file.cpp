#include "platform/input_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "platform/portable/uninterrupted.h"

namespace platform {
namespace {

std::string LastError() { return std::generic_category().message(errno); }

std::string WhyNotRegular(int file) {
  struct stat status {};
  if (fstat(file, &status) != 0) return LastError();
  if (S_ISDIR(status.st_mode)) return std::generic_category().message(EISDIR);
  return S_ISREG(status.st_mode) ? "" : "Not a regular file";
}

}  // namespace

std::string WhyUnreadable(const std::string& path) {
  // Without O_NONBLOCK, opening a named pipe would wait for somebody to write to it.
  const int file =
      Uninterrupted([&path] { return open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); });
  if (file < 0) return LastError();
  const std::string reason = WhyNotRegular(file);
  close(file);
  return reason;
}

}  // namespace platform
