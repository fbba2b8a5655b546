#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

#include "cli/hierarchy.h"
#include "plugin/htr/document.h"

// What can be told of a motion without showing every frame.

namespace cli {

using Point = std::array<double, 3>;

// An axis-aligned box in file space (Y up) and the file's length unit.
struct Bounds {
  Point least{};
  Point most{};
};

struct MotionSummary {
  // Frames that the segments hold, as opposed to those that the header announces.
  std::size_t fewest_frames = 0;
  std::size_t most_frames = 0;

  // Seconds that most_frames last; nothing when the frame rate is not positive.
  std::optional<double> length_seconds;

  // Around the joints of all segments that hang from a root, over all frames; nothing when there is
  // no such segment or no frame, or when no coordinate is a number.
  std::optional<Bounds> bounds;
};

// Requires that `hierarchy` belongs to `document`.
MotionSummary SummarizeMotion(const orvane::HtrDocument& document,
                              const std::vector<HierarchyEntry>& hierarchy);

// Where the joint of each entry of `hierarchy` stands at `frame`, counted from 0, in file space. A
// joint is the origin of its segment: position and orientation of the frame, in those of its
// parent.
std::vector<Point> JointPositions(const std::vector<HierarchyEntry>& hierarchy, std::size_t frame);

}  // namespace cli
