#pragma once

#include <cerrno>

namespace platform {

// What `call`, which makes one of the system's that return -1 on failure, returns in the end: it is
// made again as often as a signal interrupts it.
template <typename Call>
auto Uninterrupted(const Call& call) {
  while (true) {
    const auto result = call();
    if (result != -1 || errno != EINTR) return result;
  }
}

}  // namespace platform
