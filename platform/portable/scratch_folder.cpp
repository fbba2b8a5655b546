#include "platform/scratch_folder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdint>
#include <filesystem>
#include <system_error>

#include "platform/abandoned.h"
#include "platform/aside_name.h"
#include "platform/portable/file_lock.h"
#include "platform/portable/uninterrupted.h"

namespace platform {
namespace {

int OpenFolder(const std::string& path) {
  return Uninterrupted(
      [&path] { return open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC); });
}

}  // namespace

ScratchFolder::ScratchFolder(const std::string& parent) {
  std::error_code error;
  const std::string folder = std::filesystem::canonical(parent, error).string();
  if (error) {
    error_ = error.message();
    return;
  }
  RemoveAbandonedFolders(folder);
  // Who writes here meets a limit on the size of files as an error, and is not ended by it.
  std::signal(SIGXFSZ, SIG_IGN);
  const auto process = static_cast<std::uint32_t>(getpid());
  for (int attempt = 0; path_.empty() && error_.empty(); ++attempt) {
    const std::string path = folder + "/" + ScratchFolderName(process, attempt);
    if (Make(path)) path_ = path;
  }
}

ScratchFolder::~ScratchFolder() {
  std::error_code ignored;  // nobody is there to be told
  if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
  if (lock_ >= 0) close(lock_);
}

// Returns false, perhaps with an error, when the folder was not made, or when somebody took it for
// an abandoned one before it was locked. On file systems without locks nobody does.
bool ScratchFolder::Make(const std::string& path) {
  if (mkdir(path.c_str(), 0700) != 0) {
    if (errno != EEXIST) error_ = std::generic_category().message(errno);
    return false;
  }
  lock_ = OpenFolder(path);
  struct stat status {};
  const bool is_taken = lock_ >= 0 && !Lock(lock_) && errno == EWOULDBLOCK;
  if (lock_ >= 0 && !is_taken && fstat(lock_, &status) == 0 && status.st_nlink > 0) return true;
  if (lock_ >= 0) close(lock_);
  lock_ = -1;
  return false;
}

}  // namespace platform
