#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "cli/dialog_user.h"
#include "cli/failure.h"

// Whether a motion file holds the frames that its header announces. The plug-in sets keys for what
// is announced, so a header that is wrong can ask for any amount of work.

namespace cli {

struct FrameCounts {
  std::int64_t announced = 0;
  std::int64_t fewest_held = 0;  // by a segment
  std::int64_t most_held = 0;
};

// Reads `file`. Returns nothing when the reader refuses it or it holds no segments: that is the
// plug-in's to tell.
std::optional<FrameCounts> CountFrames(const std::string& file);

// What is to be said when the counts of `file` differ; nothing when they agree. Throws a Failure
// when importing by `wishes` takes far more frames than are held.
std::optional<Complaint> CompareFrameCounts(const std::string& file, const FrameCounts& counts,
                                            const std::vector<ControlWish>& wishes);

}  // namespace cli
