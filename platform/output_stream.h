#pragma once

#include <string>
#include <string_view>

namespace platform {

// Writes `bytes` to standard output as they are: no system's line ends take the place of theirs.
// What was written to std::cout before has to be flushed. Returns an empty text, or what went wrong
// in the system's words.
[[nodiscard]] std::string WriteToStandardOutput(std::string_view bytes);

}  // namespace platform
