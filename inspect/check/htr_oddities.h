#pragma once

#include <string>
#include <string_view>

#include "formats/htr/read_observer.h"
#include "inspect/check/findings.h"
#include "inspect/check/htr_parts.h"

// What is told of the oddities that the reader of HTR files meets: of each the same, whatever else
// the file holds. Lines and columns are those of the reader's cells, counted from 1; nothing fails
// but for want of memory.

namespace orvane::htr {

// An oddity as the reader tells of it, and where the parts of the file stand so far.
struct MetHtrOddity {
  HtrOddity oddity;
  const HtrCell& cell;
  std::string_view field;  // a keyword of the header or the name of a column; else empty
  const HtrParts& parts;
};

// Adds what is told of `met`; nothing when that depends on more than what is met.
void AddOddity(const MetHtrOddity& met, FindingList& findings);

// The segment that `name` is likely to mean, in words.
[[nodiscard]] std::string ExpectedSegment(std::string_view name, const HtrParts& parts);

}  // namespace orvane::htr
