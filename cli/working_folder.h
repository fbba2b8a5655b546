#pragma once

#include <filesystem>
#include <system_error>

namespace cli {

// Keeps the folder that relative paths count from: a file dialog of Windows leaves the process in
// the folder of the file that was chosen.
class WorkingFolder {
 public:
  WorkingFolder() : path_(std::filesystem::current_path(ignored_)) {}
  WorkingFolder(const WorkingFolder&) = delete;
  WorkingFolder& operator=(const WorkingFolder&) = delete;
  ~WorkingFolder() { std::filesystem::current_path(path_, ignored_); }

 private:
  std::error_code ignored_;  // a folder that is gone is nobody's
  std::filesystem::path path_;
};

}  // namespace cli
