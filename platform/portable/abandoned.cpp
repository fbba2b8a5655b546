#include "platform/abandoned.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>

#include "platform/aside_name.h"
#include "platform/portable/file_lock.h"
#include "platform/portable/uninterrupted.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

struct PosixAsideKind {
  std::optional<std::uint32_t> (*process_of)(std::string_view name);
  bool (*is_as_made)(const struct stat& status);
};

// Its mode is that of new files, or of the file that it is to replace.
bool IsFileAsMade(const struct stat& status) {
  constexpr mode_t kReadAndWrite = S_IRUSR | S_IWUSR;
  constexpr mode_t kSpecial = S_ISUID | S_ISGID | S_ISVTX;
  return S_ISREG(status.st_mode) && status.st_nlink == 1 &&
         (status.st_mode & (kReadAndWrite | kSpecial)) == kReadAndWrite;
}

bool IsFolderAsMade(const struct stat& status) {
  constexpr mode_t kPermissions = S_IRWXU | S_IRWXG | S_IRWXO;
  return S_ISDIR(status.st_mode) && (status.st_mode & kPermissions) == S_IRWXU;
}

// What has the number of this very process, and is not held, was left by an earlier one.
bool IsGone(std::uint32_t process) {
  const auto number = static_cast<pid_t>(process);
  if (number <= 0) return false;
  return number == getpid() || (kill(number, 0) != 0 && errno == ESRCH);
}

// Who writes holds a lock until the end, which other machines and containers see too.
bool IsAbandoned(int file, const PosixAsideKind& kind) {
  struct stat status {};
  return Lock(file) && fstat(file, &status) == 0 && status.st_uid == geteuid() &&
         kind.is_as_made(status);
}

void RemoveAbandoned(const fs::path& path, const PosixAsideKind& kind) {
  const int file = Uninterrupted(
      [&path] { return open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC); });
  if (file < 0) return;
  std::error_code ignored;
  if (IsAbandoned(file, kind)) fs::remove_all(path, ignored);
  close(file);
}

void RemoveAbandonedIn(const std::string& folder, const PosixAsideKind& kind) {
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    const auto process = kind.process_of(entry->path().filename().string());
    if (process && IsGone(*process)) RemoveAbandoned(entry->path(), kind);
  }
}

}  // namespace

void RemoveAbandonedFiles(const std::string& folder) {
  RemoveAbandonedIn(folder, {ProcessOfAsideName, IsFileAsMade});
}

void RemoveAbandonedFolders(const std::string& folder) {
  RemoveAbandonedIn(folder, {ProcessOfScratchFolderName, IsFolderAsMade});
}

}  // namespace platform
