#include "platform/file_viewer.h"

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <system_error>

namespace platform {
namespace {

bool IsSet(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr && *value != '\0';
}

// What a new process does with its streams: it neither reads what this program is given nor writes
// among what it tells.
class SilentStreams {
 public:
  SilentStreams() {
    posix_spawn_file_actions_init(&actions_);
    constexpr mode_t kNoMode = 0;
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
      posix_spawn_file_actions_addopen(&actions_, stream, "/dev/null", O_RDWR, kNoMode);
    }
  }
  SilentStreams(const SilentStreams&) = delete;
  SilentStreams& operator=(const SilentStreams&) = delete;
  ~SilentStreams() { posix_spawn_file_actions_destroy(&actions_); }

  [[nodiscard]] const posix_spawn_file_actions_t* Actions() const { return &actions_; }

 private:
  posix_spawn_file_actions_t actions_{};
};

}  // namespace

bool HasDesktop() { return IsSet("DISPLAY") || IsSet("WAYLAND_DISPLAY"); }

std::string ShowFile(const std::string& path) {
  std::string program = "xdg-open";
  std::string argument = path;
  const std::array<char*, 3> arguments = {program.data(), argument.data(), nullptr};
  const SilentStreams streams;
  pid_t process = -1;
  const int error = posix_spawnp(&process, program.c_str(), streams.Actions(), nullptr,
                                 arguments.data(), environ);
  if (error == 0) return "";
  return program + ": " + std::generic_category().message(error);
}

}  // namespace platform
