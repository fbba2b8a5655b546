#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

#include "formats/trc/document.h"

// Samples in a form that tests compare.
namespace test {

// A position, or nothing for a dropout.
using Sample = std::optional<std::array<double, 3>>;

inline Sample SampleAt(const orvane::TRCMarker& marker, std::size_t index) {
  std::array<double, 3> position{};
  if (!marker.GetSample(index, position[0], position[1], position[2])) return std::nullopt;
  return position;
}

inline std::vector<Sample> SamplesOf(const orvane::TRCMarker& marker) {
  std::vector<Sample> samples;
  for (std::size_t index = 0; index < marker.SampleCount(); ++index) {
    samples.push_back(SampleAt(marker, index));
  }
  return samples;
}

}  // namespace test
