#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

// Whether a number in double precision can be held by a narrower type.

namespace host {

// Rounded, but not as an infinity.
inline bool FitsFloat(double number) {
  return std::abs(number) <= std::numeric_limits<float>::max();
}

// Exactly.
inline bool FitsInt(double number) {
  return std::trunc(number) == number && number >= std::numeric_limits<std::int32_t>::min() &&
         number <= std::numeric_limits<std::int32_t>::max();
}

}  // namespace host
