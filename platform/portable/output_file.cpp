#include "platform/output_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cassert>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/abandoned.h"
#include "platform/aside_name.h"
#include "platform/portable/file_lock.h"
#include "platform/portable/move_without_replacing.h"
#include "platform/portable/uninterrupted.h"

namespace platform {
namespace {

std::string ErrorText(int error) { return std::generic_category().message(error); }

std::string LastError() { return ErrorText(errno); }

constexpr char kReadOnly[] = "it is read-only";

std::string FollowLink(const std::string& path) {
  std::error_code error;
  if (!std::filesystem::is_symlink(path, error)) return path;
  const std::filesystem::path target = std::filesystem::canonical(path, error);
  return error ? path : target.string();
}

std::string FolderOf(const std::string& path) {
  const std::filesystem::path folder = std::filesystem::path(path).parent_path();
  return folder.empty() ? "." : folder.string();
}

// Locks a file just made. Returns false when somebody took it for an abandoned one before that. On
// file systems without locks nobody does.
bool KeepFromRemoval(int file) {
  if (!Lock(file) && errno == EWOULDBLOCK) return false;
  struct stat status {};
  return fstat(file, &status) == 0 && status.st_nlink > 0;
}

// Gives the open `file` those of `replaced`, if that exists.
std::string TakePermissions(int file, const std::string& replaced) {
  struct stat existing {};
  const bool exists = stat(replaced.c_str(), &existing) == 0;
  return exists && fchmod(file, existing.st_mode & 07777) != 0 ? LastError() : "";
}

}  // namespace

OutputFile::OutputFile(const std::string& path, bool replace)
    : path_(FollowLink(path)), replace_(replace) {}

OutputFile::~OutputFile() {
  if (!aside_.empty()) unlink(aside_.c_str());
  Close();
}

bool OutputFile::IsTaken() const {
  struct stat status {};
  if (replace_ || lstat(path_.c_str(), &status) != 0) return false;
  return S_ISREG(status.st_mode) || S_ISLNK(status.st_mode);
}

bool OutputFile::IsReadOnly() const {
  constexpr mode_t kWrite = S_IWUSR | S_IWGRP | S_IWOTH;
  struct stat status {};
  return stat(path_.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
         (status.st_mode & kWrite) == 0;
}

std::string OutputFile::WhyImpossible() const {
  struct stat status {};
  if (stat(path_.c_str(), &status) == 0) {
    if (S_ISDIR(status.st_mode)) return ErrorText(EISDIR);
    if (!S_ISREG(status.st_mode)) return "Not a regular file";
    if (IsReadOnly()) return kReadOnly;
    if (!replace_) return ErrorText(EEXIST);
  }
  const std::string folder = FolderOf(path_);
  return access((folder + "/.").c_str(), W_OK | X_OK) == 0 ? "" : folder + ": " + LastError();
}

std::string OutputFile::Folder() const { return FolderOf(path_); }

std::string OutputFile::Append(std::string_view bytes) {
  // A limit on the size of files is to be an error like a full disk, and not to end the process.
  std::signal(SIGXFSZ, SIG_IGN);
  std::string error = aside_.empty() ? CreateAside() : "";
  if (error.empty()) error = FillAside(bytes);
  return error;
}

std::string OutputFile::Write(std::string_view bytes) {
  assert(aside_.empty() && file_ < 0);
  std::string error = Append(bytes);
  if (error.empty()) error = Finish();
  return error;
}

std::string OutputFile::TakeOver(const std::string& path) {
  assert(aside_.empty() && file_ < 0);
  file_ = Uninterrupted([&path] { return open(path.c_str(), O_WRONLY | O_NOFOLLOW | O_CLOEXEC); });
  if (file_ < 0) return LastError();
  aside_ = path;
  std::string error = TakePermissions(file_, path_);
  if (error.empty()) error = Finish();
  return error;
}

std::string OutputFile::CreateAside() {
  const std::string folder = FolderOf(path_);
  RemoveAbandonedFiles(folder);
  const auto process = static_cast<std::uint32_t>(getpid());
  for (int attempt = 0; aside_.empty(); ++attempt) {
    const std::string name = folder + "/" + AsideName(process, attempt);
    file_ = Uninterrupted(
        [&name] { return open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666); });
    if (file_ < 0 && errno != EEXIST) return LastError();
    if (file_ < 0) continue;
    if (KeepFromRemoval(file_)) {
      aside_ = name;
    } else {
      Close();
    }
  }
  return TakePermissions(file_, path_);
}

std::string OutputFile::FillAside(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written =
        Uninterrupted([this, bytes] { return write(file_, bytes.data(), bytes.size()); });
    if (written < 0) return LastError();
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return "";
}

std::string OutputFile::Finish() const {
  return Uninterrupted([this] { return fsync(file_); }) == 0 ? "" : LastError();
}

std::string OutputFile::Deliver() {
  assert(!aside_.empty());
  if (replace_ && IsReadOnly()) return kReadOnly;
  const int result =
      replace_ ? rename(aside_.c_str(), path_.c_str()) : MoveWithoutReplacing(aside_, path_);
  if (result != 0) return LastError();
  aside_.clear();
  Close();
  return "";
}

// What was written is on the disk by then, so that nothing is lost with a failure to close.
void OutputFile::Close() {
  if (file_ >= 0) close(file_);
  file_ = -1;
}

}  // namespace platform
