#pragma once

#include <optional>
#include <string>

#include "formats/trc/outline.h"

namespace orvane {

// What the marker file `path` holds, read a piece at a time; nothing when it cannot be read.
std::optional<TRCOutliner> OutlineTrcFile(const std::string& path);

}  // namespace orvane
