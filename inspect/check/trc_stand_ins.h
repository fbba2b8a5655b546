#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <set>
#include <vector>

#include "formats/trc/document.h"
#include "inspect/check/findings.h"
#include "inspect/check/trc_parts.h"

// Positions that stand for missing ones, as programs write them that know no empty cell: 0 0 0, or
// one that is far from all others and always the same, such as 9999.99. The reader takes them for
// positions, and nobody sees the gap. Nothing fails but for want of memory.

namespace orvane::trc {

// How far a position is from the origin along the axis where that is farthest.
[[nodiscard]] inline double DistanceOf(const TRCPosition& position) {
  return std::max({std::abs(position.x), std::abs(position.y), std::abs(position.z)});
}

// What one look at the positions of a marker tells. Distances are along an axis, in the file's
// unit; indices are those of TRCMarker::Positions.
struct PositionExtremes {
  std::size_t zeros = 0;  // how many positions are exactly 0 0 0
  std::size_t first_zero = 0;
  double farthest = 0.0;              // from the origin
  std::size_t first_farthest = 0;     // the first position that is as far as that
  std::size_t times_at_farthest = 0;  // how many are exactly this one
  double next_farthest = 0.0;         // of all others
};
[[nodiscard]] PositionExtremes FindExtremes(const TRCMarker& marker);

// The frame, counted from 0, that position `index` of the marker is of.
[[nodiscard]] std::size_t FrameOfPosition(const TRCMarker& marker, std::size_t index);

// Those of a whole document.
class StandIns {
 public:
  // `extremes` are those of the markers of `document`, in their order.
  StandIns(const TRCDocument& document, const std::vector<PositionExtremes>& extremes);

  // Whether markers are nowhere else when they are so far away along an axis.
  [[nodiscard]] bool AreAt(double distance) const { return distances_.count(distance) > 0; }
  [[nodiscard]] bool AreFar() const { return !distances_.empty(); }

  // One finding for a marker and a kind.
  void AddTo(FindingList& findings, const TrcParts& parts) const;

 private:
  void AddZeros(FindingList& findings, const TrcParts& parts) const;
  void AddFar(FindingList& findings, const TrcParts& parts) const;
  [[nodiscard]] bool MovesAwayFromZero(std::size_t marker) const;

  const TRCDocument& document_;
  const std::vector<PositionExtremes>& extremes_;
  std::set<double> distances_;
};

}  // namespace orvane::trc
