#pragma once

#include <cstddef>
#include <fstream>
#include <string>

// The log of a batch: a text file that tells which files were converted, and what the reader had to
// say about them. docs/formats/bvk.md describes its lines.
namespace orvane {

class BatchLog {
 public:
  // Makes the file `path`, or empties the one that is there. Returns false when that fails.
  [[nodiscard]] bool Open(const std::string& path);

  // Each writes its lines and hands them to the system at once. Failures are silent.

  // The title, `date_time`, which ends with a line feed, and the number of files to come.
  void WriteHeader(const std::string& date_time, std::size_t file_count);
  // Intended: `text` is a format, whose conversions are carried out without arguments; a file named
  // "50%done.trc" shows as "500one.trc".
  void WriteFormat(const std::string& text);
  // That the file `path` is done.
  void WriteDone(const std::string& path);

 private:
  std::ofstream file_;
};

}  // namespace orvane
