#pragma once

#include "inspect/check/checked_file.h"
#include "inspect/counts/frame_span.h"

// What is to be said of the frames that are cut out of a file. Nothing fails but for want of
// memory.

namespace orvane {

// Adds the finding "cut-range-outside" or "cut-range-partly" to those of the file, which holds
// `held`, when some that are asked for are not there.
void CheckCut(const FrameSpan& asked, const FrameSpan& held, CheckedFile& checked);

}  // namespace orvane
