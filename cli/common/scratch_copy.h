#pragma once

#include <string>
#include <string_view>

#include "platform/scratch_folder.h"

// What the plug-in is given in the place of the user's file: other bytes under the same name, in a
// folder of this run, because names in what is made come from the file's name.

namespace cli {

class ScratchCopy {
 public:
  // Writes `bytes` under the name of `file` in a new folder in `place`. Throws a Failure that says
  // why when that cannot be done.
  ScratchCopy(const std::string& place, const std::string& file, std::string_view bytes);

  // Where they are, as long as this lives. Interrupting the program does not leave them behind.
  [[nodiscard]] const std::string& Path() const { return path_; }

 private:
  platform::ScratchFolder folder_;
  std::string path_;
};

// Writes `bytes` to `path`, a copy of `file`. Throws a Failure about that when it cannot be done.
void WriteCopy(const std::string& path, const std::string& file, std::string_view bytes);

// The file `bytes` of markers, whose heights lie along Z, as it is with heights along Y. Throws a
// Failure about `file` when it cannot be turned.
[[nodiscard]] std::string TurnedUp(const std::string& file, std::string_view bytes);

}  // namespace cli
