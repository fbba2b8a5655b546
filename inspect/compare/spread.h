#pragma once

#include <cstddef>
#include <cstdint>

// The differences of one quantity between two files, in the frames that both hold: millimeters or
// degrees, as whoever has it says. Nothing fails. Threads may read one together, and each may
// change its own.

namespace orvane {

// Differences beyond these count. Not negative.
struct Tolerance {
  double mm = 0.001;
  double deg = 0.001;
};

// `difference`; infinity when it is no number, because a file's numbers are too large.
[[nodiscard]] double NumberOrInfinity(double difference);

struct Spread {
  double largest = 0.0;
  std::int64_t largest_frame = 0;  // number of the first frame that has it
  double sum = 0.0;
  std::size_t count = 0;

  [[nodiscard]] double Mean() const { return count == 0 ? 0.0 : sum / static_cast<double>(count); }
};

// Adds `difference`, which is of the frame of that number. REQUIRES: it is a number, or infinite.
void Add(double difference, std::int64_t frame, Spread& spread);

// Adds all of `from` to `into`, which are of things further down in a list. Returns whether `from`
// has the larger difference; of equal ones the first frame wins, then the first thing.
bool Merge(const Spread& from, Spread& into);

}  // namespace orvane
