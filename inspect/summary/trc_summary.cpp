#include "inspect/summary/trc_summary.h"

#include <algorithm>
#include <cassert>
#include <limits>
#include <utility>

namespace orvane {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr Bounds kNone{{kInfinity, kInfinity, kInfinity}, {-kInfinity, -kInfinity, -kInfinity}};

void Include(const double* least, const double* most, Bounds& bounds) {
  for (std::size_t axis = 0; axis < bounds.least.size(); ++axis) {
    bounds.least[axis] = std::min(bounds.least[axis], least[axis]);
    bounds.most[axis] = std::max(bounds.most[axis], most[axis]);
  }
}

// By marker, so that of a zero and a negative zero it is the first marker's that is told.
std::optional<Bounds> BoundsOf(const TRCDocument& document) {
  std::vector<Bounds> bounds(document.markers().size(), kNone);
  document.VisitPositions([&](std::size_t marker, std::size_t, const double* position) {
    Include(position, position, bounds[marker]);
  });
  Bounds all = kNone;
  for (const Bounds& each : bounds) Include(each.least.data(), each.most.data(), all);
  if (all.least[0] > all.most[0]) return std::nullopt;
  return all;
}

TrcMarkerSummary Summarize(std::size_t samples, std::vector<TRCMarker::Gap> gaps) {
  TrcMarkerSummary summary{samples, 0, std::move(gaps)};
  for (const TRCMarker::Gap& gap : summary.gaps) {
    const std::size_t length = gap.end - gap.begin;
    summary.present -= length;
    summary.longest_gap = std::max(summary.longest_gap, length);
  }
  return summary;
}

}  // namespace

TrcSummary SummarizeTrc(const TRCDocument& document) {
  TrcSummary summary;
  auto gaps = document.Gaps();
  summary.markers.reserve(gaps.size());
  for (const TRCMarker& marker : document.markers()) {
    summary.frames = std::max(summary.frames, marker.SampleCount());
    summary.markers.push_back(
        Summarize(marker.SampleCount(), std::move(gaps[summary.markers.size()])));
  }
  summary.bounds = BoundsOf(document);
  if (document.DataRate() > 0) {
    summary.length_seconds = static_cast<double>(summary.frames) / document.DataRate();
  }
  return summary;
}

std::vector<TRCMarker::Gap> LongestGaps(const TrcMarkerSummary& marker, std::size_t most) {
  std::vector<TRCMarker::Gap> gaps = marker.gaps;
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
