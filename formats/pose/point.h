#pragma once

#include <array>

namespace orvane {

// x, y and z, in the file's unit of length and its axes (Y up): a value, for any thread.
using Point = std::array<double, 3>;

}  // namespace orvane
