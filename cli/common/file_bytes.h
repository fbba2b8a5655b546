#pragma once

#include <string>

namespace cli {

// All bytes of `file`. Throws a Failure that says why when it cannot be read to its end.
std::string FileBytes(const std::string& file);

}  // namespace cli
