#include "examples/curve.h"

#include <cstddef>
#include <utility>

namespace examples {

Curve::Curve(std::vector<CurveKey> keys) : keys_(std::move(keys)), slopes_(keys_.size(), 0.0) {
  for (std::size_t key = 1; key + 1 < keys_.size(); ++key) {
    const CurveKey& previous = keys_[key - 1];
    const CurveKey& current = keys_[key];
    const CurveKey& next = keys_[key + 1];
    const double before = (current.value - previous.value) / (current.at - previous.at);
    const double after = (next.value - current.value) / (next.at - current.at);
    if (before * after > 0) slopes_[key] = 2 * before * after / (before + after);
  }
}

double Curve::At(double position) const {
  if (position <= keys_.front().at) return keys_.front().value;
  if (position >= keys_.back().at) return keys_.back().value;
  std::size_t key = 0;
  while (position > keys_[key + 1].at) ++key;
  const double width = keys_[key + 1].at - keys_[key].at;
  return Hermite((position - keys_[key].at) / width, keys_[key].value, slopes_[key] * width,
                 keys_[key + 1].value, slopes_[key + 1] * width);
}

double Hermite(double u, double from, double from_slope, double to, double to_slope) {
  const double v = 1 - u;
  return v * v * (1 + 2 * u) * from + u * v * v * from_slope + u * u * (3 - 2 * u) * to -
         u * u * v * to_slope;
}

}  // namespace examples
