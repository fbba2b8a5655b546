#pragma once

#include <cassert>
#include <string>

// A folder for files that are not finished yet, beside those that they are to become.

namespace platform {

class ScratchFolder {
 public:
  // Makes a new folder, which no other process uses, in the folder `parent` (UTF-8). Those that
  // killed processes have left there are removed.
  explicit ScratchFolder(const std::string& parent);
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  // Removes it, with all that is in it.
  ~ScratchFolder();

  // Why it could not be made, in the system's words, or an empty text.
  [[nodiscard]] const std::string& Error() const { return error_; }

  // Of the folder: absolute.
  // REQUIRES: Error() is empty.
  [[nodiscard]] const std::string& Path() const {
    assert(error_.empty());
    return path_;
  }

 private:
  [[nodiscard]] bool Make(const std::string& path);

  std::string path_;
  std::string error_;
  int lock_ = -1;  // as long as it is held, the folder is in use
};

}  // namespace platform
