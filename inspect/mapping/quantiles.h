#pragma once

#include <algorithm>
#include <cstddef>
#include <limits>
#include <vector>

namespace orvane {

// The value that the share `share` of `values`, 0 to 1, does not exceed; none of them is put
// between two. NaN when there are none.
[[nodiscard]] inline double Quantile(std::vector<double> values, double share) {
  if (values.empty()) return std::numeric_limits<double>::quiet_NaN();
  const auto rank = static_cast<std::ptrdiff_t>(share * static_cast<double>(values.size() - 1));
  std::nth_element(values.begin(), values.begin() + rank, values.end());
  return values[static_cast<std::size_t>(rank)];
}

[[nodiscard]] inline double Median(std::vector<double> values) {
  return Quantile(std::move(values), 0.5);
}

}  // namespace orvane
