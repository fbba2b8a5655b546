#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "cli/common/whole_output.h"
#include "cli/rewrite/prepared_file.h"

// Where a rewritten file goes.

namespace cli {

class RewriteOutput {
 public:
  // `path` is the file to make, or "-" for standard output. Throws as WholeOutput does.
  RewriteOutput(const std::string& path, bool replace);

  // Writes `file`, whole or not at all, and returns its size in bytes. Standard output cannot take
  // back what it was given: what goes there is made twice, the first time for nobody. Throws a
  // Failure when the file or the place refuses it, or when the user has interrupted the program.
  std::size_t Deliver(const PreparedFile& file);

 private:
  void Append(std::string_view piece);

  std::optional<WholeOutput> file_;
};

}  // namespace cli
