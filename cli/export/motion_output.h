#pragma once

#include <optional>
#include <string>

#include "cli/common/failure.h"
#include "platform/output_file.h"
#include "platform/scratch_folder.h"

// The motion file that a verb lets the plug-in make: it appears when all is well, and not at all
// otherwise.

namespace cli {

// The file that the user means by `name`, as the writer takes it: with ".htr" behind it unless its
// last part has a full stop as its fourth character from the end.
[[nodiscard]] std::string MotionFilePath(const std::string& name);

class MotionOutput {
 public:
  // The file that the user means by `name`. Throws a Failure when it cannot be made: above all when
  // it exists and `replace` is not set.
  MotionOutput(const std::string& name, bool replace);

  [[nodiscard]] const std::string& Path() const { return path_; }

  // Where the plug-in is to write the file: under its own name, in a new folder beside its place.
  // From now on the program puts that away before it ends, a second interruption or not. Throws a
  // Failure when there cannot be one.
  // REQUIRES: it has not been called before.
  [[nodiscard]] std::string MakeRoom();

  // Gives what was written there its place. Throws a Failure when that cannot be done, or when the
  // user has interrupted the program.
  // REQUIRES: there is room, and the plug-in has written the file.
  void Deliver();

 private:
  [[nodiscard]] Failure CannotWrite(const std::string& reason) const;

  std::string path_;
  platform::OutputFile file_;
  std::optional<platform::ScratchFolder> room_;
  std::string written_;  // in the room
};

// Whether `name` means a motion file: its name ends in ".htr", in either case, as the writer
// completes it.
[[nodiscard]] bool IsMotionFileName(const std::string& name);

}  // namespace cli
