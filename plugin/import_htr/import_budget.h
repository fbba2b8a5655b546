#pragma once

#include <cstdint>

#include "plugin/htr/document.h"

// How much work a file may ask for. A few hundred bytes can announce more frames than any memory
// holds, and a file that lists its hierarchy twice doubles it at every level. A file that holds the
// frames it announces and lists each segment once always fits.
namespace orvane {

// Whether `frame_count` frames of each segment stay within several times what `document` holds. A
// file that breaks off early may announce more than that as long as it is a modest number in all.
bool FramesFit(const HtrDocument& document, std::int64_t frame_count);

// What the user is told when they do not fit.
inline constexpr char kTooManyFramesMessage[] =
    "The file is damaged: it announces far more frames than it holds.";

// How many segments may be created or keyed when each takes `frame_count` frames of `document`,
// which fit: all of them once, and repetitions within the same bounds, which are always enough for
// a small mistake.
std::int64_t SegmentBudget(const HtrDocument& document, std::int64_t frame_count);

// Whether the hierarchy from `root` down, with a segment counted as often as it is listed, has at
// most `budget` segments. Takes no more steps than that.
bool HierarchyFits(const HtrSegment& root, std::int64_t budget);

// What the user is told when it does not fit.
inline constexpr char kOverBudgetMessage[] =
    "The file is damaged: it lists its hierarchy over and over.";

}  // namespace orvane
