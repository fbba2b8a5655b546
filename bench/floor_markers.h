#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

struct FloorMarkers {
  std::vector<std::string> names;
  std::vector<double> values;  // by frames, in these by markers: x, y, z; NaN in a gap
};

// Fills markers from the text of a TRC file, which comes in pieces that end with a line break.
class FloorMarkersReader {
 public:
  explicit FloorMarkersReader(FloorMarkers& markers) : markers_(markers) {}

  void Take(std::string_view text);

 private:
  void TakeHeading(std::string_view line);
  const char* TakeFrame(const char* at);

  FloorMarkers& markers_;
  int headings_ = 0;
  std::size_t frames_ = 0;
};

}  // namespace bench
