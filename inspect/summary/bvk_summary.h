#pragma once

#include <cstdint>
#include <optional>
#include <string>

// What the plug-in has written to a BVK file: counts of frames, markers and samples, without their
// values. All throw std::bad_alloc or std::ios_base::failure when they cannot read on.

namespace orvane {

struct BvkSummary {
  std::int64_t frames = 0;  // none where a negative number is announced
  std::int64_t markers = 0;
};

// Looks at the start and the end of the file `path`. Returns nothing when it is not there or not
// whole: the plug-in does not notice a disk that is full. What is written behind that is lost, so
// that a file which ends with its last frame holds all before.
[[nodiscard]] std::optional<BvkSummary> SummarizeBvk(const std::string& path);

// How many dropouts the file `path` holds, which SummarizeBvk has found whole. Reads all of it, a
// piece at a time.
[[nodiscard]] std::int64_t CountBvkDropouts(const std::string& path);

}  // namespace orvane
