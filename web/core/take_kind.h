#pragma once

#include <string>

#include "cli/common/file_kind.h"

namespace web {

// What the file `path` is to be read as: what its first lines show it to be, or else its name.
// Throws a Refusal when neither does, and when it cannot be read.
[[nodiscard]] cli::FileKind FindTakeKind(const std::string& path);

}  // namespace web
