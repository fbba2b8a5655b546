#pragma once

#include <optional>

#include "inspect/check/checked_file.h"
#include "inspect/report/frame_check.h"

// Which frames of a file are cut out when some are asked for. Nothing fails but for want of memory.

namespace orvane {

// Those of `asked` that are among `held`, the file's; nothing when none are.
[[nodiscard]] std::optional<FrameSpan> FramesToCut(const FrameSpan& asked,
                                                   const std::optional<FrameSpan>& held);

// Adds the finding "cut-range-outside" or "cut-range-partly" to those of the file, when some that
// are asked for are not there.
void CheckCut(const FrameSpan& asked, const std::optional<FrameSpan>& held, CheckedFile& checked);

}  // namespace orvane
