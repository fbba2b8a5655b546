#pragma once

#include <cstddef>

#include "formats/trc/marker.h"

// The samples of a marker one after the other, each in constant time.
namespace orvane {

class TRCSampleWalk {
 public:
  // Starts at the first sample. `marker` must outlive the walk and keep its samples meanwhile.
  explicit TRCSampleWalk(const TRCMarker& marker)
      : marker_(&marker),
        position_(marker.Positions().data()),
        gap_(marker.Gaps().data()),
        gaps_end_(gap_ + marker.Gaps().size()) {}

  // Puts the position of the next sample into `position` and returns whether it is present, as
  // TRCMarker::GetSample does; past the end none is.
  [[nodiscard]] bool Next(TRCPosition& position) {
    const std::size_t index = index_++;
    if (gap_ != gaps_end_ && index == gap_->end) ++gap_;
    const bool in_gap = gap_ != gaps_end_ && index >= gap_->begin;
    if (in_gap || index >= marker_->SampleCount()) {
      position = {};
      return index < marker_->ScaledCount();
    }
    position = *position_++;
    return true;
  }

 private:
  const TRCMarker* marker_;
  const TRCPosition* position_;  // of the next sample that has one
  const TRCMarker::Gap* gap_;    // the next one that does not end before the next sample
  const TRCMarker::Gap* gaps_end_;
  std::size_t index_ = 0;
};

}  // namespace orvane
