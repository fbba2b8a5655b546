#pragma once

#include <sys/file.h>

namespace platform {

// Locks the open file or folder `file`, for as long as it is open. Returns false with errno:
// EWOULDBLOCK when somebody else has locked it, another when its file system has no locks.
[[nodiscard]] inline bool Lock(int file) { return flock(file, LOCK_EX | LOCK_NB) == 0; }

}  // namespace platform
