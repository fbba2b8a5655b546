#pragma once

#include <cstdint>
#include <string>

#include "formats/htr/document.h"
#include "formats/htr/reader.h"
#include "inspect/counts/proportion.h"

// Whether a motion file holds the frames that its header announces. The plug-in sets keys for what
// is announced, so a header that is wrong can ask for any amount of work.

namespace orvane {

struct FrameCounts {
  std::int64_t announced = 0;
  std::int64_t fewest_held = 0;  // by a segment
  std::int64_t most_held = 0;
};

// Requires that `document` has segments.
FrameCounts CountFrames(const HtrDocument& document);

// The same of one whose frames are only counted, in `held`.
FrameCounts CountFrames(const HtrDocument& document, const HtrFrameCounts& held);

// Tells that `counts` differ, and how.
std::string DescribeDifference(const FrameCounts& counts);

// Whether importing `frames` is far more work than the file is worth.
bool IsOutOfProportion(std::int64_t frames, const FrameCounts& counts);

// Why `frames` of a file with these `counts`, of which some are `made_up`, are out of proportion;
// empty when they are not.
std::string WhyOutOfProportion(std::int64_t frames, const FrameCounts& counts,
                               const MadeUpFrames& made_up);

}  // namespace orvane
