#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/common/input_file.h"
#include "cli/common/scratch_copy.h"
#include "platform/input_stream.h"

// What is streamed in, as a file: readers look into it more than once, and the plug-in opens it.

namespace cli {

// Whether `input`, which a user gives for a file, is a stream, and which: "-" is standard input.
[[nodiscard]] std::optional<platform::InputStream> StreamOf(const std::string& input);

class StreamedFile {
 public:
  // The stream that the user means by `input` and wants to be called `name`; empty: standard input
  // is called "stdin", others as he gives them.
  // REQUIRES: it is a stream.
  StreamedFile(const std::string& input, std::string name);

  // What it is called.
  [[nodiscard]] const std::string& Name() const { return name_; }

  // As many of its first bytes as show its kind. Throws a Failure when it cannot be read, or when
  // the user interrupts that.
  const std::string& Start();

  // All of it under that name, "stdin" when nobody has chosen it, with `extension` (".htr") behind
  // it unless it has one. Throws a Failure when it cannot be read or kept.
  InputFile Keep(const std::string& extension);

 private:
  // The next bytes; nothing behind the last ones.
  std::string_view Next();

  const platform::InputStream stream_;
  const std::string name_;
  const std::string kept_name_;  // without its extension
  std::optional<std::string> start_;
  std::string piece_;
  bool is_at_end_ = false;
  std::optional<ScratchCopy> copy_;
};

}  // namespace cli
