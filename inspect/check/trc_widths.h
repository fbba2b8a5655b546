#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "formats/trc/read_observer.h"

// How wide the lines of frames are: a line that has lost cells in its middle looks like one in
// which the last markers drop out. Lines and fields count from 1; nothing is kept of the bytes, and
// nothing fails but for want of memory.

namespace orvane::trc {

struct TrcWidths {
  // The last field that any frame has a value in; 0 without values.
  std::size_t last_value = 0;
  // How many fields most frames have, the widest of them, and in which most have their last value.
  std::size_t usual = 0;
  std::size_t widest = 0;
  std::size_t usual_last_value = 0;

  struct NarrowFrame {
    TRCPlace place;
    std::size_t fields = 0;
  };
  // The frames, if they are few, that have fewer fields, and end with fewer values. A line that the
  // end of the file cuts is none of them, nor is one without positions.
  std::vector<NarrowFrame> narrow;

  // The first line behind all values, when there are lines without any at the end.
  std::optional<TRCPlace> blank_end;
};

// Those of the file that `bytes` are.
[[nodiscard]] TrcWidths MeasureWidths(std::string_view bytes);

}  // namespace orvane::trc
