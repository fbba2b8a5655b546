#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "inspect/check/findings.h"

// What is told of frame rates, in files of any kind. Rates are whole frames per second; cells are
// texts as they stand in the file. Nothing fails but for want of memory.

namespace orvane {

// The frame rates that a scene can have.
inline constexpr std::int32_t kLowestRate = 1;
inline constexpr std::int32_t kHighestRate = 4800;

// Whether there is such a frame rate in a scene.
[[nodiscard]] bool IsRate(std::int32_t frames_per_second);

// What is told of the rate in `cell`, which is none that a scene can have.
[[nodiscard]] FindingWords WordsOfRateOutOfRange(std::string_view cell);

// How long a minute lasts when the fraction of the rate is left out.
[[nodiscard]] std::string EffectOfCutRate(std::string_view cell);

}  // namespace orvane
