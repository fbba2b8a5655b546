#pragma once

#include <cstdint>
#include <numeric>
#include <optional>
#include <string>

// What a scene's motion was recorded as. Nothing that a plug-in sees depends on it: the host counts
// whole ticks in a frame, and that is what its clock and its keys follow. Viewers are told the
// truth by it.

namespace host {

// Frames per second as a fraction: `numerator` frames last `denominator` seconds.
struct Rate {
  std::int64_t numerator = 1;
  std::int64_t denominator = 1;

  friend bool operator==(const Rate&, const Rate&) = default;
};

// The largest number in a Rate: double precision holds all up to it.
inline constexpr std::int64_t kLargestInRate = std::int64_t{1} << 53U;

// Whether both numbers are from 1 to kLargestInRate, in lowest terms.
inline bool IsInLowestTerms(const Rate& rate) {
  const auto is_in_range = [](std::int64_t number) {
    return 1 <= number && number <= kLargestInRate;
  };
  return is_in_range(rate.numerator) && is_in_range(rate.denominator) &&
         std::gcd(rate.numerator, rate.denominator) == 1;
}

// The recording behind a scene, which owns it.
struct Recording {
  // What one frame of the scene lasts for viewers; nothing when they go by the host's own time.
  // REQUIRES: it is in lowest terms.
  std::optional<Rate> rate;

  // The number that the file gives its first frame.
  int first_frame = 1;

  // The file's unit of length, by its keyword in the file.
  std::string unit;

  // The name of the file, without folders.
  std::string source;

  // Whether the file had Z up, and was turned to have Y up before it was imported.
  bool turned_up = false;

  friend bool operator==(const Recording&, const Recording&) = default;
};

}  // namespace host
