#pragma once

#include <string>

namespace platform {

// Where the file `path` (UTF-8) is, whatever of it exists: absolute, and without symbolic links,
// "." and "..". Two paths of one file have the same place, also those that differ in the case of
// letters where that makes no other file. Meant to be compared, not to be opened.
[[nodiscard]] std::string PlaceOf(const std::string& path);

}  // namespace platform
