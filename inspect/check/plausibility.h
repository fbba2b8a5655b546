#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>

#include "formats/text/number_faults.h"
#include "inspect/check/findings.h"
#include "inspect/summary/motion_summary.h"
#include "inspect/summary/subject.h"

// What no capture has, though every cell of the file can be read: bodies as large as a house, and
// positions beyond the horizon. Lengths are in the file's unit (formats/units). Nothing fails but
// for want of memory.

namespace orvane {

// What is told of `subject` when its size is none of a body, a hand or a face: its unit is another,
// most likely.
[[nodiscard]] std::optional<FindingWords> WordsOfOddSize(const std::optional<Subject>& subject,
                                                         std::uint32_t length_unit);

// The distance from the origin, along an axis, beyond which nothing is captured: a number like that
// stands for a position that is missing. What is infinite in a scene is told of by its cell.
class Horizon {
 public:
  explicit Horizon(std::uint32_t length_unit);

  // Whether a coordinate of the point is beyond that, and none is infinite.
  [[nodiscard]] bool Hides(double x, double y, double z) const {
    const double farthest = std::max({std::abs(x), std::abs(y), std::abs(z)});
    return farthest > distance_ && FitsSinglePrecision(farthest);
  }

  // Whether that may be so of a point among others, of which the farthest coordinate is `farthest`.
  [[nodiscard]] bool MayHide(double farthest) const { return farthest > distance_; }

  [[nodiscard]] double Distance() const { return distance_; }

 private:
  double distance_;
};

// What is told of one; `name` is whose position it is.
[[nodiscard]] FindingWords WordsOfOutOfSight(const std::string& name, const Point& point,
                                             std::uint32_t length_unit);

}  // namespace orvane
