#include "platform/input_stream.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <string_view>
#include <system_error>

#include "platform/interrupt.h"
#include "platform/portable/uninterrupted.h"

namespace platform {
namespace {

// How long a wish to stop may go unnoticed.
constexpr int kPollMilliseconds = 100;

std::optional<InputStream> NumberIn(std::string_view text) {
  InputStream number = 0;
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  if (result.ec != std::errc() || result.ptr != end || number < 0) return std::nullopt;
  return number;
}

// Whether reading will not wait: it may also meet the end, or an error.
bool IsReady(InputStream stream) {
  pollfd waiting{stream, POLLIN, 0};
  return poll(&waiting, 1, kPollMilliseconds) > 0;
}

}  // namespace

std::optional<InputStream> StreamNamed(const std::string& path) {
  if (path == "/dev/stdin") return kStandardInput;
  for (const std::string_view folder : {"/dev/fd/", "/proc/self/fd/"}) {
    if (path.starts_with(folder)) return NumberIn(std::string_view(path).substr(folder.size()));
  }
  return std::nullopt;
}

bool IsTerminal(InputStream stream) { return isatty(stream) == 1; }

const char* KeysThatEndInput() { return "Ctrl-D"; }

ReadBytes ReadSome(InputStream stream, char* buffer, std::size_t size) {
  while (!Interrupted()) {
    if (!IsReady(stream)) continue;
    const ssize_t count =
        Uninterrupted([stream, buffer, size] { return read(stream, buffer, size); });
    if (count >= 0) return {static_cast<std::size_t>(count), ""};
    if (errno != EAGAIN) return {0, std::generic_category().message(errno)};
  }
  return {};
}

}  // namespace platform
