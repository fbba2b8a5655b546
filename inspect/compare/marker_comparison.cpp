#include "inspect/compare/marker_comparison.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "formats/units/units.h"

namespace orvane {
namespace {

using MarkersByName = std::unordered_map<std::string_view, const TRCMarker*>;

MarkersByName NamesOf(const TRCDocument& document) {
  MarkersByName markers;
  for (const TRCMarker& marker : document.markers()) markers.emplace(marker.Name(), &marker);
  return markers;
}

double MillimetersPerUnit(const TRCDocument& document) {
  return LengthFactor(static_cast<std::uint32_t>(document.Units()), kMillimeters);
}

// The samples of one marker from a frame on, in millimeters.
class Trajectory {
 public:
  // `skipped` frames come before the first one wanted.
  Trajectory(const TRCMarker& marker, std::int64_t skipped, double millimeters_per_unit)
      : marker_(&marker),
        next_(static_cast<std::size_t>(std::max<std::int64_t>(skipped, 0))),
        millimeters_per_unit_(millimeters_per_unit) {}

  [[nodiscard]] bool Next(TRCPosition& position) {
    const bool is_measured = marker_->GetSample(next_++, position.x, position.y, position.z);
    position.x *= millimeters_per_unit_;
    position.y *= millimeters_per_unit_;
    position.z *= millimeters_per_unit_;
    return is_measured;
  }

 private:
  const TRCMarker* marker_;
  std::size_t next_;
  double millimeters_per_unit_;
};

double Distance(const TRCPosition& a, const TRCPosition& b) {
  return NumberOrInfinity(std::hypot(a.x - b.x, a.y - b.y, a.z - b.z));
}

class MarkerComparer {
 public:
  MarkerComparer(const TRCDocument& a, const TRCDocument& b, double tolerance_mm)
      : a_(a), b_(b), tolerance_mm_(tolerance_mm) {}

  MarkerComparison Run() {
    const FrameSpan frames_a = FramesHeld(a_);
    const FrameSpan frames_b = FramesHeld(b_);
    result_.frames = CommonFrames(frames_a, frames_b);
    result_.only_frames = FramesOfOneAlone(frames_a, frames_b);
    result_.frame_rate_differs = a_.DataRate() != b_.DataRate();
    MatchMarkers();
    ComparePairs();
    SumUp();
    return std::move(result_);
  }

 private:
  struct Pair {
    Trajectory a;
    Trajectory b;
    std::size_t marker;  // in the result
  };

  void MatchMarkers() {
    const MarkersByName of_a = NamesOf(a_);
    const MarkersByName of_b = NamesOf(b_);
    for (const TRCMarker& marker : a_.markers()) {
      const auto other = of_b.find(marker.Name());
      if (other == of_b.end()) {
        result_.only_markers.push_back({WhichFile::kA, marker.Name()});
      } else {
        AddPair(marker, *other->second);
      }
    }
    for (const TRCMarker& marker : b_.markers()) {
      if (of_a.contains(marker.Name())) continue;
      result_.only_markers.push_back({WhichFile::kB, marker.Name()});
    }
  }

  void AddPair(const TRCMarker& in_a, const TRCMarker& in_b) {
    result_.markers.push_back({in_a.Name(), {}});
    if (!result_.frames) return;
    const std::int64_t first = result_.frames->first;
    pairs_.push_back({Trajectory(in_a, first - a_.FirstFrame(), MillimetersPerUnit(a_)),
                      Trajectory(in_b, first - b_.FirstFrame(), MillimetersPerUnit(b_)),
                      result_.markers.size() - 1});
  }

  // Frame by frame, as documents hold their samples.
  void ComparePairs() {
    if (!result_.frames) return;
    for (std::int64_t frame = result_.frames->first; frame <= result_.frames->last; ++frame) {
      for (Pair& pair : pairs_) {
        CompareSamples(pair.a, pair.b, frame, result_.markers[pair.marker].difference);
      }
    }
  }

  void CompareSamples(Trajectory& a, Trajectory& b, std::int64_t frame,
                      MarkerDifference& difference) const {
    TRCPosition in_a;
    TRCPosition in_b;
    const bool is_in_a = a.Next(in_a);
    const bool is_in_b = b.Next(in_b);
    if (!is_in_a && !is_in_b) return;
    bool is_beyond = is_in_a != is_in_b;
    if (is_beyond) {
      ++(is_in_a ? difference.only_in_a : difference.only_in_b);
    } else {
      const double distance_mm = Distance(in_a, in_b);
      Add(distance_mm, frame, difference.distance_mm);
      is_beyond = distance_mm > tolerance_mm_;
    }
    if (is_beyond && !difference.first_beyond) difference.first_beyond = frame;
  }

  void SumUp() {
    MarkerDifference& overall = result_.overall;
    for (std::size_t index = 0; index < result_.markers.size(); ++index) {
      const MarkerDifference& marker = result_.markers[index].difference;
      if (Merge(marker.distance_mm, overall.distance_mm)) result_.farthest = index;
      overall.only_in_a += marker.only_in_a;
      overall.only_in_b += marker.only_in_b;
      if (!marker.first_beyond) continue;
      if (overall.first_beyond && *overall.first_beyond <= *marker.first_beyond) continue;
      overall.first_beyond = marker.first_beyond;
      result_.beyond = index;
    }
  }

  const TRCDocument& a_;
  const TRCDocument& b_;
  const double tolerance_mm_;
  MarkerComparison result_;
  std::vector<Pair> pairs_;
};

}  // namespace

MarkerComparison CompareMarkers(const TRCDocument& a, const TRCDocument& b, double tolerance_mm) {
  assert(tolerance_mm >= 0.0);
  return MarkerComparer(a, b, tolerance_mm).Run();
}

}  // namespace orvane
