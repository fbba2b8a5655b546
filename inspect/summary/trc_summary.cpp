#include "inspect/summary/trc_summary.h"

#include <algorithm>
#include <cassert>

namespace orvane {
namespace {

void Include(const TRCPosition& position, std::optional<Bounds>& bounds) {
  const Point point{position.x, position.y, position.z};
  if (!bounds) bounds = Bounds{point, point};
  for (std::size_t axis = 0; axis < point.size(); ++axis) {
    bounds->least[axis] = std::min(bounds->least[axis], point[axis]);
    bounds->most[axis] = std::max(bounds->most[axis], point[axis]);
  }
}

TrcMarkerSummary Summarize(const TRCMarker& marker) {
  TrcMarkerSummary summary{marker.Positions().size(), 0};
  for (const TRCMarker::Gap& gap : marker.Gaps()) {
    summary.longest_gap = std::max(summary.longest_gap, gap.end - gap.begin);
  }
  return summary;
}

}  // namespace

TrcSummary SummarizeTrc(const TRCDocument& document) {
  TrcSummary summary;
  for (const TRCMarker& marker : document.markers()) {
    summary.frames = std::max(summary.frames, marker.SampleCount());
    summary.markers.push_back(Summarize(marker));
    for (const TRCPosition& position : marker.Positions()) Include(position, summary.bounds);
  }
  if (document.DataRate() > 0) {
    summary.length_seconds = static_cast<double>(summary.frames) / document.DataRate();
  }
  return summary;
}

std::vector<TRCMarker::Gap> LongestGaps(const TRCMarker& marker, std::size_t most) {
  const auto all = marker.Gaps();
  std::vector<TRCMarker::Gap> gaps(all.begin(), all.end());
  const auto is_longer = [](const TRCMarker::Gap& left, const TRCMarker::Gap& right) {
    return left.end - left.begin > right.end - right.begin;
  };
  std::stable_sort(gaps.begin(), gaps.end(), is_longer);
  gaps.resize(std::min(most, gaps.size()));
  return gaps;
}

double Coverage(const TrcMarkerSummary& marker, std::size_t frames) {
  assert(marker.present <= frames);
  return frames == 0 ? 0.0 : static_cast<double>(marker.present) / static_cast<double>(frames);
}

}  // namespace orvane
