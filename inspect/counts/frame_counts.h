#pragma once

#include <cstdint>
#include <string>

#include "formats/htr/document.h"
#include "inspect/counts/proportion.h"

// Whether a motion file holds the frames that its header announces. The plug-in sets keys for what
// is announced, so a header that is wrong can ask for any amount of work. Texts are returned
// without a stop. Nothing fails but for want of memory.

namespace orvane {

struct FrameCounts {
  std::int64_t announced = 0;
  std::int64_t fewest_held = 0;  // by a segment that has any
  std::int64_t most_held = 0;
};

// REQUIRES: `document` has segments.
[[nodiscard]] FrameCounts CountFrames(const HtrDocument& document);

// Tells that `counts` differ, and how.
[[nodiscard]] std::string DescribeDifference(const FrameCounts& counts);

// Whether importing `frames` is far more work than the file is worth.
[[nodiscard]] bool IsOutOfProportion(std::int64_t frames, const FrameCounts& counts);

// Why `frames` of a file with these `counts`, of which some are `made_up`, are out of proportion;
// empty when they are not.
[[nodiscard]] std::string WhyOutOfProportion(std::int64_t frames, const FrameCounts& counts,
                                             const MadeUpFrames& made_up);

}  // namespace orvane
