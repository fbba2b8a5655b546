#pragma once

#include <array>

namespace orvane {

// x, y and z, in the file's length unit.
using Point = std::array<double, 3>;

}  // namespace orvane
