#pragma once

#include <cstdint>

#include "formats/htr/document.h"

// How much work a hierarchy may ask for. A file that lists its hierarchy twice doubles it at every
// level, so a few hundred bytes can ask for more bones than any memory holds. A hierarchy that
// lists each segment once always fits, however many frames it announces.
namespace orvane {

// How many segments may be created or keyed when each takes `frame_count` frames of `document`: all
// of them once, and repetitions as long as their frames stay within several times what the document
// holds, which is always enough for a small mistake.
// REQUIRES: `frame_count` is 0 or more.
std::int64_t SegmentBudget(const HtrDocument& document, std::int64_t frame_count);

// Whether the hierarchy from `root` down, with a segment counted as often as it is listed, has at
// most `budget` segments. Takes no more steps than that.
[[nodiscard]] bool HierarchyFits(const HtrSegment& root, std::int64_t budget);

// What the user is told when it does not fit.
inline constexpr char kOverBudgetMessage[] =
    "The file is damaged: it lists its hierarchy over and over.";

}  // namespace orvane
