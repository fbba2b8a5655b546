#include "inspect/compare/spread.h"

#include <cassert>
#include <cmath>
#include <limits>

namespace orvane {

double NumberOrInfinity(double difference) {
  return std::isnan(difference) ? std::numeric_limits<double>::infinity() : difference;
}

void Add(double difference, std::int64_t frame, Spread& spread) {
  assert(!std::isnan(difference));
  if (spread.count == 0 || difference > spread.largest) {
    spread.largest = difference;
    spread.largest_frame = frame;
  }
  spread.sum += difference;
  ++spread.count;
}

bool Merge(const Spread& from, Spread& into) {
  if (from.count == 0) return false;
  const bool takes_over = into.count == 0 || from.largest > into.largest ||
                          (from.largest == into.largest && from.largest_frame < into.largest_frame);
  if (takes_over) {
    into.largest = from.largest;
    into.largest_frame = from.largest_frame;
  }
  into.sum += from.sum;
  into.count += from.count;
  return takes_over;
}

}  // namespace orvane
