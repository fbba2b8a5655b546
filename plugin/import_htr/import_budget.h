#pragma once

#include <cstdint>

#include "plugin/htr/document.h"

// How much work a file may ask for. A few bytes can announce billions of frames, and a hierarchy
// that lists its segments twice doubles at every level; both are told from honest files by
// comparing what is asked for with what the file holds.
namespace orvane {

// How many segments may be created or keyed when each takes `frame_count` frames of `document`:
// several times what the document holds, and always enough for a small mistake.
std::int64_t SegmentBudget(const HtrDocument& document, std::int64_t frame_count);

// Whether the hierarchy from `root` down, with a segment counted as often as it is listed, has at
// most `budget` segments. Takes no more steps than that.
bool HierarchyFits(const HtrSegment& root, std::int64_t budget);

// What the user is told when it does not fit.
inline constexpr char kOverBudgetMessage[] =
    "The file is damaged: it announces far more motion than it holds.";

}  // namespace orvane
