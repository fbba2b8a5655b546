#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "cli/common/failure.h"
#include "cli/common/input_file.h"
#include "platform/scratch_folder.h"

// What the plug-in is given in the place of the user's file: other bytes under the same name, in a
// folder of this run, because names in what is made come from the file's name.

namespace cli {

// Returns the next piece of some bytes each time, and nothing behind the last one. Each lives until
// the next call.
using PieceSource = std::function<std::string_view()>;

class ScratchCopy {
 public:
  // Writes `bytes` under the name that `file` lies under, in a new folder in `place`. Throws a
  // Failure that says why when that cannot be done.
  ScratchCopy(const std::string& place, const InputFile& file, std::string_view bytes);

  // Writes all that `next` returns under `name` in a new folder in `place`. Throws a Failure with
  // `complaint` when that cannot be done, and what `next` throws.
  ScratchCopy(const std::string& place, const std::string& name, const PieceSource& next,
              const Complaint& complaint);

  // Where they are, as long as this lives. Interrupting the program does not leave them behind.
  [[nodiscard]] const std::string& Path() const { return path_; }

 private:
  platform::ScratchFolder folder_;
  std::string path_;
};

// Writes `bytes` to `path`, a copy of the file that the user knows as `file`. Throws a Failure
// about that when it cannot be done.
void WriteCopy(const std::string& path, const std::string& file, std::string_view bytes);

// The file `bytes` of markers, whose heights lie along Z, as it is with heights along Y. Throws a
// Failure about `file` when it cannot be turned.
[[nodiscard]] std::string TurnedUp(const std::string& file, std::string_view bytes);

}  // namespace cli
