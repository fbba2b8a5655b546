#pragma once

#include <string>

namespace cli {

// A file that is read. What is streamed in lies in a copy that its user knows nothing of.
struct InputFile {
  std::string name;  // as the user knows it, for all that is told
  std::string path;  // where its bytes are
};

// The file that lies where its user says.
[[nodiscard]] inline InputFile FileAt(const std::string& path) { return {path, path}; }

}  // namespace cli
