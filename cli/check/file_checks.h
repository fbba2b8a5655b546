#pragma once

#include <string>
#include <vector>

#include "inspect/check/checked_file.h"

// The kinds of files that `orvane check` knows, and which files its user means.

namespace cli {

// The kinds that there are checks for.
enum class CheckedKinds {
  kFiles,   // motion files, marker files and mappings
  kScenes,  // what is exported from
};

// The files that `input` stands for: of a folder those directly in it that have an extension of one
// of `kinds`, in the order of their names; otherwise `input` itself. Throws a Failure when there
// are none.
[[nodiscard]] std::vector<std::string> FilesToCheck(const std::string& input, CheckedKinds kinds);

// Checks the file `name` as one of `kind`, which is an extension without its point; when that is
// empty, by its own extension, as an HTR file when that is unknown. Throws a Failure when it cannot
// be read.
[[nodiscard]] orvane::CheckedFile CheckFile(const std::string& name, const std::string& kind);

}  // namespace cli
