#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// How a file is named that is being written beside the place that it is for.

namespace platform {

// ".orvane-PROCESS-NUMBER": that of the process, and its own among those of the process.
std::string AsideName(std::uint64_t process, int number);

// Whether `name` is such a name.
bool IsAsideName(std::string_view name);

// What the names of folders for such files begin with; the same two numbers follow. They are not
// hidden: the system lets its user choose no folder that is.
inline constexpr char kScratchFolderPrefix[] = "~orvane-folder-";

std::string ScratchFolderName(std::uint64_t process, int number);

}  // namespace platform
