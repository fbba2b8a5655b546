#include "platform/portable/move_without_replacing.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdio>

namespace platform {

// Files in memory have no links, and nobody else who makes some.
int MoveWithoutReplacing(const std::string& from, const std::string& to) {
  struct stat status {};
  if (lstat(to.c_str(), &status) == 0) {
    errno = EEXIST;
    return -1;
  }
  return std::rename(from.c_str(), to.c_str());
}

}  // namespace platform
