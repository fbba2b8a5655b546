#include "inspect/summary/motion_summary.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <limits>

#include "formats/pose/pose_walk.h"
#include "inspect/summary/subject_measure.h"

namespace orvane {
namespace {

void Include(const Point& point, Bounds& bounds) {
  if (std::isnan(point[0]) || std::isnan(point[1]) || std::isnan(point[2])) return;
  for (std::size_t axis = 0; axis < 3; ++axis) {
    bounds.least[axis] = std::min(bounds.least[axis], point[axis]);
    bounds.most[axis] = std::max(bounds.most[axis], point[axis]);
  }
}

// One walk for all that depends on where the joints are.
void WalkPoses(const std::vector<HierarchyEntry>& hierarchy, MotionSummary& summary) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  Bounds bounds{{kInfinity, kInfinity, kInfinity}, {-kInfinity, -kInfinity, -kInfinity}};
  const std::size_t frame_count = MostFramesOf(hierarchy);
  SubjectMeasure measure(frame_count, hierarchy.size());
  PoseWalk walk(hierarchy, PoseParts::kPositions);
  for (std::size_t frame = 0; frame < frame_count; ++frame) {
    walk.MoveTo(frame);
    for (const std::size_t entry : walk.Holding()) Include(walk.PositionOf(entry), bounds);
    measure.TakePose(frame, walk);
  }
  const bool found_any = bounds.least[0] <= bounds.most[0] && bounds.least[1] <= bounds.most[1] &&
                         bounds.least[2] <= bounds.most[2];
  if (found_any) summary.bounds = bounds;
  summary.subject = measure.Finish();
}

}  // namespace

MotionSummary SummarizeMotion(const HtrDocument& document,
                              const std::vector<HierarchyEntry>& hierarchy) {
  assert(hierarchy.size() <= document.segments().size());
  MotionSummary summary;
  const auto& segments = document.segments();
  if (segments.empty()) return summary;
  const auto [fewest, most] = std::minmax_element(
      segments.begin(), segments.end(), [](const HtrSegment& left, const HtrSegment& right) {
        return left.GetNumFrames() < right.GetNumFrames();
      });
  summary.fewest_frames = fewest->GetNumFrames();
  summary.most_frames = most->GetNumFrames();
  if (document.GetDataFrameRate() > 0) {
    summary.length_seconds = static_cast<double>(summary.most_frames) / document.GetDataFrameRate();
  }
  WalkPoses(hierarchy, summary);
  return summary;
}

}  // namespace orvane
