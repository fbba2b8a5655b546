#pragma once

#include "cli/findings.h"
#include "cli/htr_parts.h"
#include "formats/htr/document.h"

// What can be said of an HTR file only when all of it has been read: parts that are missing, and
// how the segments hang together.

namespace cli::htr {

// `parts` is where those of `document` stand.
void CheckStructure(const orvane::HtrDocument& document, const Parts& parts, FindingList& findings);

}  // namespace cli::htr
