#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "formats/trc/document.h"
#include "inspect/compare/sides.h"
#include "inspect/compare/spread.h"

// How far the markers of two marker files are from each other, frame by frame, in millimeters.
// Markers are told by their names, with the case of their letters, and frames by their numbers as
// the reader takes them. What is returned holds copies; nothing fails but for want of memory. May
// be called from any thread; the documents are only read.

namespace orvane {

// Of one marker, or of all.
struct MarkerDifference {
  Spread distance_mm;                        // in the frames in which both files have measured it
  std::size_t only_in_a = 0;                 // common frames in which A alone has measured it
  std::size_t only_in_b = 0;                 // the same of B
  std::optional<std::int64_t> first_beyond;  // number of the first frame that is out of tolerance,
                                             // or in which one file alone has measured it
};

struct ComparedMarker {
  std::string name;
  MarkerDifference difference;
};

struct OnlyMarker {
  WhichFile file = WhichFile::kA;
  std::string name;
};

struct MarkerComparison {
  std::vector<ComparedMarker> markers;  // those of both files, in A's order
  std::optional<FrameSpan> frames;      // that both files hold; nothing when there are none

  // What one file alone holds, or both differently.
  std::vector<OnlyMarker> only_markers;  // those of A first, each file's in its own order
  std::vector<FramesOfOne> only_frames;
  bool frame_rate_differs = false;

  MarkerDifference overall;
  std::size_t farthest = 0;  // index of the marker that the largest distance is of; meaningless
                             // when nothing was compared
  std::size_t beyond = 0;    // the same of the first frame beyond; meaningless when there is none

  [[nodiscard]] bool HoldTheSame() const {
    return only_markers.empty() && only_frames.empty() && !frame_rate_differs;
  }
};

// Takes time in proportion to the samples of both files. A distance beyond `tolerance_mm`
// (millimeters, not negative) counts.
[[nodiscard]] MarkerComparison CompareMarkers(const TRCDocument& a, const TRCDocument& b,
                                              double tolerance_mm);

}  // namespace orvane
