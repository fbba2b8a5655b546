#pragma once

#include <string>

#include "cli/common/failure.h"
#include "cli/compare/comparison.h"

// The comparison of two folders: of the files that lie under the same name in both.

namespace cli {

struct FolderWishes {
  std::string folder_a;
  std::string folder_b;
  bool recursive = false;
  bool json = false;
  bool quiet = false;  // nothing but what could not be compared is told
  CompareManner manner;
};

// Compares the folders and tells of that as wished, the files one by one and the findings in them
// together. Returns the status of the worst pair; a file that one folder alone holds is a
// difference.
[[nodiscard]] ExitStatus CompareFolders(const FolderWishes& wishes);

}  // namespace cli
