#include "plugin/exchange/options.h"

#include <algorithm>
#include <limits>

namespace orvane {

void ExchangeOptions::SetFrameBounds(std::int32_t first, std::int64_t last) {
  constexpr std::int64_t kLowest = std::numeric_limits<std::int32_t>::min();
  constexpr std::int64_t kHighest = std::numeric_limits<std::int32_t>::max();
  startFrame = first;
  endFrame = static_cast<std::int32_t>(std::clamp(last, kLowest, kHighest));
}

}  // namespace orvane
