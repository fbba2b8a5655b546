#pragma once

#include <string>

#include "cli/common/found_files.h"
#include "cli/common/input_files.h"
#include "inspect/check/checked_file.h"

// The kinds of files that `orvane check` knows, and how they are found in folders.

namespace cli {

// The kinds that there are checks for.
enum class CheckedKinds {
  kFiles,   // motion files, marker files and mappings
  kScenes,  // what is exported from
};

// Finds those of `kinds` in folders, by their extensions.
[[nodiscard]] FileSearch SearchFor(CheckedKinds kinds, bool recursive);

// Checks `name`, one of `files`, as one of `kind`, which is an extension without its point; when
// that is empty, by its own extension, as an HTR file when that is unknown. Throws a Failure when
// it cannot be read, or when nothing shows what standard input is.
[[nodiscard]] orvane::CheckedFile CheckFile(const std::string& name, const std::string& kind,
                                            InputFiles& files);

}  // namespace cli
