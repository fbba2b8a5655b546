#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// What the plug-in's log of a batch tells of its files.

namespace cli {

// One file that was handled.
struct LoggedFile {
  std::string message;  // why the reader refused it, in its words; empty when it did not
  std::size_t end = 0;  // where the log tells of the next file
};

// The files that `log` says were handled, which are the first ones of `sources`: the paths that the
// plug-in was given, in order.
[[nodiscard]] std::vector<LoggedFile> ReadBatchLog(std::string_view log,
                                                   const std::vector<std::string>& sources);

// The reader's words in `report`, which is the path of a file (or what a log makes of it), ": ",
// and the words.
[[nodiscard]] std::string ReaderMessage(std::string_view report);

}  // namespace cli
