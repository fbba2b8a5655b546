#include "platform/output_stream.h"

#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "platform/portable/uninterrupted.h"

namespace platform {

std::string WriteToStandardOutput(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count =
        Uninterrupted([bytes] { return write(STDOUT_FILENO, bytes.data(), bytes.size()); });
    if (count < 0) return std::generic_category().message(errno);
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return {};
}

}  // namespace platform
