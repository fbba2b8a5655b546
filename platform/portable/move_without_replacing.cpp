#include "platform/portable/move_without_replacing.h"

#include <unistd.h>

namespace platform {

// Link and remove, because renaming would replace what has appeared at `to`.
int MoveWithoutReplacing(const std::string& from, const std::string& to) {
  if (link(from.c_str(), to.c_str()) != 0) return -1;
  unlink(from.c_str());
  return 0;
}

}  // namespace platform
