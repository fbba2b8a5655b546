#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// What is said of frame rates, in files of any kind.

namespace cli {

// Whether there is such a frame rate in a scene.
bool IsRate(std::int32_t frames_per_second);
std::string ExpectedRate();
// How long a minute lasts when the fraction of the rate is left out.
std::string EffectOfCutRate(std::string_view cell);

}  // namespace cli
