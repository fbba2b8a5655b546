#include "python/binding/frame_array.h"

#include <limits>

namespace binding {

FrameArray::FrameArray(std::size_t frames, std::size_t names, std::size_t numbers)
    : frames_(frames),
      names_(names),
      numbers_(numbers),
      values_(frames * names * numbers, std::numeric_limits<double>::quiet_NaN()) {}

}  // namespace binding
