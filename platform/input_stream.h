#pragma once

#include <cstddef>
#include <optional>
#include <string>

// What is read as it comes, and once: standard input, and what a shell puts in a file's place.

namespace platform {

// A stream that is open in this process, by the system's number.
using InputStream = int;

inline constexpr InputStream kStandardInput = 0;

// The stream that the system means by `path`, such as "/dev/stdin" or "/dev/fd/63"; nothing when
// that is a file, whatever it may be.
[[nodiscard]] std::optional<InputStream> StreamNamed(const std::string& path);

// Whether a person types what comes out of `stream`.
[[nodiscard]] bool IsTerminal(InputStream stream);

// The key, or keys, by which he says on a terminal that this was all.
[[nodiscard]] const char* KeysThatEndInput();

struct ReadBytes {
  std::size_t count = 0;  // 0 at the end, too
  std::string error;      // in the system's words, when there is one
};

// Waits until there are bytes in `stream` and reads them, as they are, into `buffer`, which has
// room for `size` of them. Ends without any when the user interrupts the program, which catches
// that (platform/interrupt.h).
[[nodiscard]] ReadBytes ReadSome(InputStream stream, char* buffer, std::size_t size);

}  // namespace platform
