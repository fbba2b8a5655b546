#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "formats/trc/outline.h"

// What a marker file holds, without its samples: the file is read a piece at a time, so that its
// size does not matter.

namespace orvane {

// The outline of the marker file `path`; nothing when it cannot be read to its end. Throws
// std::bad_alloc for want of memory.
[[nodiscard]] std::optional<TRCOutliner> OutlineTrcFile(const std::string& path);

// That of the marker file that `bytes` are. Throws std::bad_alloc for want of memory.
[[nodiscard]] TRCOutliner OutlineTrc(std::string_view bytes);

}  // namespace orvane
