#include "cli/trc_parts.h"

#include <algorithm>

namespace cli::trc {

std::size_t Parts::LineOfFrame(std::size_t index) const {
  const auto behind =
      std::upper_bound(runs_.begin(), runs_.end(), index,
                       [](std::size_t frame, const Run& run) { return frame < run.frame; });
  const Run& run = *std::prev(behind);
  return run.line + (index - run.frame);
}

}  // namespace cli::trc
