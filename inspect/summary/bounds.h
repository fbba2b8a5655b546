#pragma once

#include <array>

namespace orvane {

// x, y and z.
using Point = std::array<double, 3>;

// An axis-aligned box in file space (Y up) and the file's length unit.
struct Bounds {
  Point least{};
  Point most{};
};

}  // namespace orvane
