#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <random>
#include <string>

#include "tests/support/bits.h"

// Numbers to print in tests, and what they have to look like.
namespace test {

// `value` with six decimals, as the C library prints it.
inline std::string AsTheLibraryPrints(double value) {
  std::array<char, 400> text{};
  const int length = std::snprintf(text.data(), text.size(), "%.6f", value);
  return {text.data(), static_cast<std::size_t>(length)};
}

// Seeded numbers, in turn: of a motion's size; of any size up to a million, and beyond; with few
// decimals; a seventh decimal of 5, and its neighbours; exact ties, and their neighbours; whole;
// any bits, which are huge, tiny, infinite or no number at all.
class PrintedValues {
 public:
  explicit PrintedValues(std::uint64_t seed) : random_(seed) {}

  double Next() {
    const double sign = (random_() & 1) == 0 ? 1.0 : -1.0;
    switch (turn_++ % 8) {
      case 0:
        return sign * Uniform() * 5000.0;
      case 1:
        return sign * std::exp2(Uniform() * 45.0 - 24.0);
      case 2:
        return sign * Whole(4'000'000'000) / 1e6;
      case 3:
        return Neighbour(sign * (10.0 * Whole(1'000'000'000) + 5.0) / 1e7);
      case 4:
        return Neighbour(sign * (2.0 * Whole(100'000'000) + 1.0) / 128.0);
      case 5:
        return sign * Whole(1'000'000'000'000);
      case 6:
        return sign * Uniform();
      default:
        return BitCast<double>(random_());
    }
  }

 private:
  double Uniform() { return static_cast<double>(random_() >> 11U) * 0x1p-53; }
  double Whole(std::uint64_t limit) { return static_cast<double>(random_() % limit); }

  double Neighbour(double value) {
    const std::uint64_t side = random_() % 3;
    if (side == 0) return value;
    return std::nextafter(value, side == 1 ? -HUGE_VAL : HUGE_VAL);
  }

  std::mt19937_64 random_;
  std::uint64_t turn_ = 0;
};

}  // namespace test
