#pragma once

#include <memory>
#include <string>

// A text file that lines are appended to, for messages that no one is there to read.

namespace platform {

// The path of the plug-in's log: a fixed one on Windows, a file in the user's state folder
// elsewhere; empty when the user has no such folder.
[[nodiscard]] std::string LogFilePath();

// An open log. Other processes may read and write the file meanwhile. Closed when destroyed.
class LogFile {
 public:
  // Opens `path` for appending and creates it (and, off Windows, its folder) when it does not
  // exist; never truncates. Returns null when that fails.
  [[nodiscard]] static std::unique_ptr<LogFile> Open(const std::string& path);

  virtual ~LogFile() = default;

  // Appends `line` and a line end, and hands both to the system at once. Failures are silent: there
  // is nobody to tell.
  virtual void AppendLine(const std::string& line) = 0;
};

}  // namespace platform
