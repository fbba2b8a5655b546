#pragma once

#include <cstddef>
#include <set>
#include <vector>

#include "formats/trc/document.h"
#include "inspect/check/findings.h"
#include "inspect/check/trc_parts.h"
#include "inspect/check/trc_samples.h"

// Positions that stand for missing ones, as programs write them that know no empty cell: 0 0 0, or
// one that is far from all others and always the same, such as 9999.99. The reader takes them for
// positions, and nobody sees the gap. Nothing fails but for want of memory.

namespace orvane::trc {

// Those of a whole file.
class StandIns {
 public:
  // `samples` are those of the markers of `document`, in their order.
  StandIns(const TRCDocument& document, const std::vector<MarkerSamples>& samples);

  // Whether markers are nowhere else when they are so far away along an axis.
  [[nodiscard]] bool AreAt(double distance) const { return distances_.count(distance) > 0; }
  [[nodiscard]] bool AreFar() const { return !distances_.empty(); }

  // One finding for a marker and a kind.
  void AddTo(FindingList& findings, const TrcParts& parts) const;

 private:
  void AddZeros(FindingList& findings, const TrcParts& parts) const;
  void AddFar(FindingList& findings, const TrcParts& parts) const;

  const TRCDocument& document_;
  const std::vector<MarkerSamples>& samples_;
  std::set<double> distances_;
};

}  // namespace orvane::trc
