#pragma once

#include "cli/common/told_reading.h"
#include "cli/rewrite/output_formats.h"

// What becomes of oddities where that is other in tables and BVH files than in the format that was
// read.

namespace cli {

// In files of `format`. REQUIRES: what is done is rewriting.
[[nodiscard]] Consequences ConsequencesIn(OutputFormat format);

}  // namespace cli
