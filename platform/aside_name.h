#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// How a file is named that is being written beside the place that it is for, and a folder for such
// files. Both names end in two numbers: that of the process, and their own among those of the
// process.

namespace platform {

// ".orvane-PROCESS-NUMBER".
[[nodiscard]] std::string AsideName(std::uint32_t process, int number);

// "~orvane-folder-PROCESS-NUMBER". Not hidden: the system lets its user choose no folder that is.
[[nodiscard]] std::string ScratchFolderName(std::uint32_t process, int number);

// The process in a name of the one kind or the other; nothing when `name` is not exactly what the
// functions above make.
[[nodiscard]] std::optional<std::uint32_t> ProcessOfAsideName(std::string_view name);
[[nodiscard]] std::optional<std::uint32_t> ProcessOfScratchFolderName(std::string_view name);

}  // namespace platform
