#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

inline constexpr std::size_t kMotionValues = 7;  // translations, rotations in radians, scale

struct FloorSegment {
  std::string name;
  std::vector<double> values;  // kMotionValues for each frame
};

struct FloorMotion {
  std::size_t frames = 0;
  std::vector<FloorSegment> segments;
};

// Fills a motion from the text of an HTR file, which comes in pieces that end with a line break.
class FloorMotionReader {
 public:
  explicit FloorMotionReader(FloorMotion& motion) : motion_(motion) {}

  void Take(std::string_view text);

 private:
  void TakeLine(std::string_view line);
  const char* TakeSample(const char* at);

  FloorMotion& motion_;
  bool bases_ = false;  // "[BasePosition]" has been there
  bool motion_rows_ = false;
};

}  // namespace bench
