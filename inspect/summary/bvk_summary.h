#pragma once

#include <cstdint>
#include <optional>
#include <string>

// What the plug-in has written to a BVK file: counts of frames, markers and samples, without their
// values.

namespace orvane {

struct BvkSummary {
  std::int64_t frames = 0;  // none where a negative number is announced
  std::int64_t markers = 0;
  std::int64_t dropouts = 0;
};

// Reads the file `path` a piece at a time. Returns nothing when it is not there or not whole:
// the plug-in does not notice a disk that is full. Throws std::bad_alloc or std::ios_base::failure
// when it cannot be read to its end.
[[nodiscard]] std::optional<BvkSummary> SummarizeBvk(const std::string& path);

}  // namespace orvane
