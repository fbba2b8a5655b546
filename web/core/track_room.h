#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include "formats/array/array_too_large.h"

namespace web {

inline constexpr std::size_t kAxes = 3;

// Room for three numbers at [frame][object], all of them NaN. Throws orvane::ArrayTooLarge when few
// of so many are `held`, frames of all objects together.
[[nodiscard]] inline std::vector<float> MakeTrackRoom(std::size_t frames, std::size_t objects,
                                                      std::size_t held) {
  constexpr std::uint64_t kBytes = kAxes * sizeof(float);
  orvane::RequireProportion(kBytes * frames * objects, kBytes * held);
  return std::vector<float>(kAxes * frames * objects, std::numeric_limits<float>::quiet_NaN());
}

}  // namespace web
