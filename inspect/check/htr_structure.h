#pragma once

#include "formats/htr/document.h"
#include "inspect/check/findings.h"
#include "inspect/check/htr_parts.h"

// What can be said of an HTR file only when all of it has been read: parts that are missing, and
// how the segments hang together. Lines and columns are those of the reader's cells, counted from
// 1. Nothing fails but for want of memory.

namespace orvane::htr {

// Adds to `findings`. REQUIRES: `parts` is where those of `document` stand.
void CheckStructure(const HtrDocument& document, const HtrParts& parts, FindingList& findings);

}  // namespace orvane::htr
