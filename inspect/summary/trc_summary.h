#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "formats/trc/document.h"
#include "inspect/summary/motion_summary.h"

// What can be told of a marker file without showing every frame: counts of samples, seconds, and a
// box in the file's own unit of length. Samples count from 0. Nothing fails but for want of memory.
// May be called from any thread; documents are only read.

namespace orvane {

struct TrcMarkerSummary {
  std::size_t present = 0;           // samples that are no dropouts
  std::size_t longest_gap = 0;       // dropouts in a row
  std::vector<TRCMarker::Gap> gaps;  // in order
};

struct TrcSummary {
  std::size_t frames = 0;                 // that are held, as opposed to those announced
  std::vector<TrcMarkerSummary> markers;  // in the order of the document

  // Seconds that the frames last; nothing when the data rate is not positive.
  std::optional<double> length_seconds;

  // Around all positions; nothing when there is none.
  std::optional<Bounds> bounds;
};

[[nodiscard]] TrcSummary SummarizeTrc(const TRCDocument& document);

// The `most` longest gaps of `marker`, the longest first, and as they come of one length.
[[nodiscard]] std::vector<TRCMarker::Gap> LongestGaps(const TrcMarkerSummary& marker,
                                                      std::size_t most);

// The part of `frames` that `marker` is present in, 0 to 1; 0 when there are none.
// REQUIRES: `frames` are those of the file, so that `marker` is present in no more.
[[nodiscard]] double Coverage(const TrcMarkerSummary& marker, std::size_t frames);

}  // namespace orvane
