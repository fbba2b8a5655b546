#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "formats/c3d/plan.h"

// Which parameters a file has. Belongs to the writer.
namespace orvane {

inline constexpr std::uint32_t kMostC3dWord = 0xFFFF;
inline constexpr float kC3dScale = -1.0F;               // below 0: coordinates are real numbers
inline constexpr std::uint32_t kC3dParameterBlock = 2;  // blocks count from 1

// Whether 16 bits cannot tell how many frames there are: readers take 65535 for no number, and go
// by parameters, or read to the end of the file.
[[nodiscard]] inline bool HasLongC3dFrames(const C3dPlan& plan) {
  return plan.frame_count >= kMostC3dWord;
}

// How the file is told, beside what its plan says already.
struct C3dSaid {
  std::string_view unit;
  std::string_view rate;  // as text
  std::uint32_t vertical_axis = kAxisY;
};

// The bytes of all parameters, whole blocks; it may be too many of them.
[[nodiscard]] std::string MakeC3dParameters(const C3dPlan& plan, const C3dSaid& said);

}  // namespace orvane
