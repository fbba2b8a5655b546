#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "formats/htr/document.h"
#include "formats/pose/hierarchy.h"
#include "inspect/summary/subject.h"

// What can be told of a motion without showing every frame: counts of frames, seconds, a box in the
// file's own unit of length, and the subject, from one walk over its poses. Nothing fails but for
// want of memory. May be called from any thread; the document is only read.

namespace orvane {

struct MotionSummary {
  // Frames that the segments hold, as opposed to those that the header announces.
  std::size_t fewest_frames = 0;
  std::size_t most_frames = 0;

  // Seconds that most_frames last; nothing when the frame rate is not positive.
  std::optional<double> length_seconds;

  // Around the joints of all segments that hang from a root, over the frames that each holds;
  // nothing when there is no such segment or no frame, or when no coordinate is a number.
  std::optional<Bounds> bounds;

  // Who or what moves, of what hangs from the roots; nothing when no frame has two joints.
  std::optional<Subject> subject;
};

// REQUIRES: `hierarchy` is ListHierarchy of `document`.
[[nodiscard]] MotionSummary SummarizeMotion(const HtrDocument& document,
                                            const std::vector<HierarchyEntry>& hierarchy);

}  // namespace orvane
