#pragma once

#include <cstddef>
#include <string_view>

#include "formats/trc/read_observer.h"
#include "inspect/check/findings.h"

// What is told of the oddities that the reader of TRC files meets: of each the same, whatever else
// the file holds. Lines, columns and fields are the reader's, counted from 1; nothing fails but for
// want of memory.

namespace orvane::trc {

// An oddity as the reader tells of it, and what has been read by then.
struct MetTrcOddity {
  TRCOddity oddity;
  TRCPlace place;
  std::string_view text;
  std::size_t markers = 0;  // of the document
  bool in_frames = false;   // not in the header
};

// Adds what is told of `met`; nothing when that depends on more than what is met.
void AddOddity(const MetTrcOddity& met, FindingList& findings);

// What becomes of a column whose name makes no marker.
inline constexpr char kColumnsShift[] =
    "It makes no marker, and the values of its column go to the next one: all columns behind it "
    "shift.";

}  // namespace orvane::trc
