#pragma once

#include <vector>

#include "platform/export.h"
#include "sdk/core/types.h"

// Where a node's motion was measured, and where it was not: importers put a key at the origin for a
// sample that a file does not have, and a key does not tell. Nothing that a plug-in sees depends on
// it. The node owns it.

namespace host {

// How viewers are shown the gaps of a node.
enum class GapManner {
  kHide,    // not at all
  kHold,    // at the last measured place
  kOrigin,  // as the keys are
};

// Samples in a row that are missing: the ticks of the first and of the last of them. The node was
// not measured at any tick from the one to the other.
struct Gap {
  TimeValue first = 0;
  TimeValue last = 0;

  friend bool operator==(const Gap&, const Gap&) = default;
};

// What is known of the measurement of a node.
struct SKELDER_API Measured {
  // Whether the import that the gaps are from made the node: then nobody else relies on how it
  // looks.
  bool made_by_import = false;

  GapManner manner = GapManner::kHide;

  // In rising order, none touching another; samples before the first measured one and behind the
  // last are gaps too. A node whose keys all lie in gaps was never measured.
  std::vector<Gap> gaps;

  // Takes over what a later import found over `span`: `later`, gaps as above that all lie in it,
  // replace what was known of these ticks, and what lies before and behind them stays.
  // REQUIRES: `span.first` is not greater than `span.last`.
  void Replace(const Gap& span, const std::vector<Gap>& later);

  // Whether `tick` lies in a gap.
  bool IsMissing(TimeValue tick) const;

  friend bool operator==(const Measured&, const Measured&) = default;
};

// Whether each of `gaps` ends no earlier than it begins, and begins behind the end of the one
// before.
SKELDER_API bool AreInOrder(const std::vector<Gap>& gaps);

}  // namespace host
