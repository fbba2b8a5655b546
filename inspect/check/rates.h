#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// What is said of frame rates, in files of any kind.

namespace orvane {

// The frame rates that a scene can have.
inline constexpr std::int32_t kLowestRate = 1;
inline constexpr std::int32_t kHighestRate = 4800;

// Whether there is such a frame rate in a scene.
bool IsRate(std::int32_t frames_per_second);
std::string ExpectedRate();
// How long a minute lasts when the fraction of the rate is left out.
std::string EffectOfCutRate(std::string_view cell);

}  // namespace orvane
