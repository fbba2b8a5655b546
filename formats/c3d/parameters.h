#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Which parameters a file has. Belongs to the writer.
namespace orvane {

inline constexpr std::uint32_t kMostC3dWord = 0xFFFF;
inline constexpr float kC3dScale = -1.0F;               // below 0: coordinates are real numbers
inline constexpr std::uint32_t kC3dParameterBlock = 2;  // blocks count from 1

// Whether 16 bits cannot tell how many frames there are: readers take 65535 for no number, and go
// by parameters, or read to the end of the file.
[[nodiscard]] inline bool IsBeyondC3dWord(std::uint32_t frame_count) {
  return frame_count >= kMostC3dWord;
}

struct C3dParameters {
  std::vector<std::string_view> labels;  // of all markers
  std::uint32_t frame_count = 0;
  std::uint32_t first_frame = 1;  // its number
  float frames_per_second = 0.0F;
  std::string_view rate;  // the same as text, exactly
  std::string_view unit;
  std::string_view vertical_axis;  // X, Y or Z
};

// The bytes of all parameters, whole blocks; it may be too many of them.
[[nodiscard]] std::string MakeC3dParameters(const C3dParameters& parameters);

}  // namespace orvane
