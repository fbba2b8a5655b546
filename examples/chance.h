#pragma once

#include <cstdint>
#include <random>

namespace examples {

// Numbers by chance that are the same on every system, as those of the standard library's
// distributions are not.
class Chance {
 public:
  explicit Chance(std::uint64_t seed) : random_(seed) {}

  // From `least` up to `most`, evenly.
  double Between(double least, double most) {
    return least + (most - least) * static_cast<double>(random_() >> 11U) * 0x1p-53;
  }

  // Below `limit`, evenly.
  std::uint64_t Below(std::uint64_t limit) { return random_() % limit; }

  // Around 0, in the shape of a bell that ends at six times its spread.
  double Around(double spread) {
    constexpr int kSummands = 12;  // whose variances add up to 1
    double sum = 0;
    for (int index = 0; index < kSummands; ++index) sum += Between(-0.5, 0.5);
    return spread * sum;
  }

 private:
  std::mt19937_64 random_;
};

}  // namespace examples
