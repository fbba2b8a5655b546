#pragma once

#include <string>

// What processes that were killed have left behind. A process of this program puts away what it
// has not finished; what it could not is removed by the next one that writes into the folder.

namespace platform {

// Each removes from `folder` (UTF-8) the files, or the folders with all that is in them, that have
// a name of platform/aside_name.h, belong to this user, are such as its processes make them, and
// whose process is gone. What somebody still holds is kept, wherever that process may be.
void RemoveAbandonedFiles(const std::string& folder);
void RemoveAbandonedFolders(const std::string& folder);

}  // namespace platform
