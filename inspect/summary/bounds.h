#pragma once

#include "formats/pose/point.h"

namespace orvane {

// An axis-aligned box in file space (Y up) and the file's length unit: a value, for any thread.
struct Bounds {
  Point least{};
  Point most{};
};

}  // namespace orvane
