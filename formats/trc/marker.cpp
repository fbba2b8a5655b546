#include "formats/trc/marker.h"

#include <algorithm>
#include <iterator>

namespace orvane {
namespace {

// Where the position of sample `index` stands, which lies behind `gap` and before the next one.
std::size_t PositionIndex(std::size_t index, const TRCMarker::Gap* gap) {
  return gap == nullptr ? index : index - gap->end + gap->positions_before;
}

}  // namespace

void TRCMarker::AppendDropouts(std::size_t count) {
  if (count == 0) return;
  if (gaps_.empty() || gaps_.back().end != sample_count_) {
    gaps_.push_back({sample_count_, sample_count_, positions_.size()});
  }
  sample_count_ += count;
  gaps_.back().end = sample_count_;
}

bool TRCMarker::GetSample(std::size_t index, double& x, double& y, double& z) const {
  TRCPosition position;
  bool present = false;
  if (index < sample_count_) {
    const Gap* gap = GapAtOrBefore(index);
    const bool is_position = gap == nullptr || index >= gap->end;
    if (is_position) position = positions_[PositionIndex(index, gap)];
    present = is_position || index < scaled_count_;
  }
  x = position.x;
  y = position.y;
  z = position.z;
  return present;
}

bool TRCMarker::SetSample(std::size_t index, double x, double y, double z) {
  if (index >= sample_count_) return false;
  const TRCPosition position{x, y, z};
  const Gap* gap = GapAtOrBefore(index);
  if (gap == nullptr || index >= gap->end) {
    positions_[PositionIndex(index, gap)] = position;
  } else {
    OpenGap(static_cast<std::size_t>(gap - gaps_.data()), index, position);
  }
  return true;
}

void TRCMarker::Scale(double factor) {
  for (TRCPosition& position : positions_) {
    position.x *= factor;
    position.y *= factor;
    position.z *= factor;
  }
  scaled_count_ = sample_count_;
}

const TRCMarker::Gap* TRCMarker::GapAtOrBefore(std::size_t index) const {
  const auto behind =
      std::upper_bound(gaps_.begin(), gaps_.end(), index,
                       [](std::size_t sample, const Gap& gap) { return sample < gap.begin; });
  return behind == gaps_.begin() ? nullptr : &*std::prev(behind);
}

// Puts a position in the place of one dropout of a gap, of which up to two shorter gaps remain.
void TRCMarker::OpenGap(std::size_t gap_index, std::size_t sample, const TRCPosition& position) {
  const Gap before{gaps_[gap_index].begin, sample, gaps_[gap_index].positions_before};
  const Gap after{sample + 1, gaps_[gap_index].end, gaps_[gap_index].positions_before};
  positions_.insert(positions_.begin() + static_cast<std::ptrdiff_t>(before.positions_before),
                    position);
  auto at = gaps_.erase(gaps_.begin() + static_cast<std::ptrdiff_t>(gap_index));
  if (after.begin != after.end) at = gaps_.insert(at, after);
  if (before.begin != before.end) at = std::next(gaps_.insert(at, before));
  for (; at != gaps_.end(); ++at) ++at->positions_before;
}

}  // namespace orvane
