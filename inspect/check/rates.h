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
inline constexpr std::int32_t kHighestRate = 4800;  // a frame is a tick

// `value` in as many digits as tell it from `other`, up to six behind the point.
[[nodiscard]] std::string TellApart(double value, double other);

// Whether there is such a frame rate in a scene.
[[nodiscard]] bool IsRate(std::int32_t frames_per_second);

// What is told of the rate in `cell`, which is none that a scene can have.
[[nodiscard]] FindingWords WordsOfRateOutOfRange(std::string_view cell);

// Whether a frame at a rate that a scene can have lasts a whole number of the host's ticks, 4800 a
// second: the host takes the next shorter one.
[[nodiscard]] bool LastsWholeTicks(std::int32_t frames_per_second);

// What is told of the rate in `cell`, whose frames do not.
[[nodiscard]] FindingWords WordsOfInexactRate(std::string_view cell);

// What becomes of the rate in `cell` in a scene of the host, and how long a minute lasts there.
[[nodiscard]] std::string EffectOfRateInHost(std::string_view cell);

// How long a minute lasts when the fraction of the rate is left out.
[[nodiscard]] std::string EffectOfCutRate(std::string_view cell);

}  // namespace orvane
