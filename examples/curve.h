#pragma once

#include <vector>

namespace examples {

struct CurveKey {
  double at;
  double value;
};

// A smooth curve through its keys that never overshoots them: cubic between keys, with the tangents
// of Fritsch and Butland ("A method for constructing local monotone piecewise cubic interpolants",
// 1984). Beyond the first and last key it stays at their values. Keys ascend.
class Curve {
 public:
  explicit Curve(std::vector<CurveKey> keys);

  double At(double position) const;

 private:
  std::vector<CurveKey> keys_;
  std::vector<double> slopes_;  // at the keys
};

// The cubic from `from` to `to` over `u` in 0 to 1, with the given slopes in u at both ends.
double Hermite(double u, double from, double from_slope, double to, double to_slope);

}  // namespace examples
