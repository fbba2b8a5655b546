#pragma once

#include <string>
#include <string_view>

#include "platform/output_file.h"

// A file that a verb makes: it appears when all is well, and not at all otherwise.

namespace cli {

class WholeOutput {
 public:
  // Throws a Failure when `path` cannot be made: above all when it exists and `replace` is not set,
  // with `kept_advice` then where that is not empty.
  WholeOutput(std::string path, bool replace, std::string kept_advice = "");

  // The folder that the file is to lie in.
  [[nodiscard]] std::string Folder() const;

  // Takes the next bytes of the file, which wait beside its place. Throws a Failure when the disk
  // does not take them, or when the user has interrupted the program.
  void Append(std::string_view bytes);

  // Puts what was appended in the file's place. Throws as Append does. REQUIRES: Append was called.
  void Deliver();

  // Both, for who has all bytes at once.
  void Deliver(std::string_view bytes);

 private:
  void RequireNone(const std::string& error) const;

  std::string path_;
  std::string kept_advice_;
  platform::OutputFile file_;
};

}  // namespace cli
