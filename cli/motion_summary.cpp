#include "cli/motion_summary.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "plugin/math/euler_rotation.h"
#include "plugin/math/rotation_matrix3.h"

namespace cli {
namespace {

using orvane::HtrSegment;
using orvane::RotationMatrix3;
using orvane::Vector3;

struct Frame {
  RotationMatrix3 rotation;
  Point position{};
};

// A point of `parent`'s space in the world.
Point ToWorld(const Frame& parent, const Vector3& local) {
  Point world = parent.position;
  for (unsigned row = 0; row < 3; ++row) {
    for (unsigned column = 0; column < 3; ++column) {
      world[row] += parent.rotation.Element(row, column) * local[column];
    }
  }
  return world;
}

void Include(const Point& point, Bounds& bounds) {
  for (std::size_t axis = 0; axis < 3; ++axis) {
    bounds.least[axis] = std::fmin(bounds.least[axis], point[axis]);
    bounds.most[axis] = std::fmax(bounds.most[axis], point[axis]);
  }
}

std::optional<Bounds> MotionBounds(const std::vector<HierarchyEntry>& hierarchy,
                                   std::size_t frame_count) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  Bounds bounds{{kInfinity, kInfinity, kInfinity}, {-kInfinity, -kInfinity, -kInfinity}};
  for (std::size_t frame = 0; frame < frame_count; ++frame) {
    for (const Point& joint : JointPositions(hierarchy, frame)) Include(joint, bounds);
  }
  const bool found_any = bounds.least[0] <= bounds.most[0] && bounds.least[1] <= bounds.most[1] &&
                         bounds.least[2] <= bounds.most[2];
  return found_any ? std::optional(bounds) : std::nullopt;
}

}  // namespace

std::vector<Point> JointPositions(const std::vector<HierarchyEntry>& hierarchy, std::size_t frame) {
  std::vector<RotationMatrix3> rotations(hierarchy.size());
  std::vector<Point> positions(hierarchy.size());
  for (std::size_t i = 0; i < hierarchy.size(); ++i) {
    const HtrSegment& segment = *hierarchy[i].segment;
    const std::size_t parent = hierarchy[i].parent;
    const Frame parent_frame = parent == i ? Frame{} : Frame{rotations[parent], positions[parent]};
    positions[i] = ToWorld(parent_frame, segment.GetFramePosition(frame));
    rotations[i] = parent_frame.rotation * RotationMatrix3(segment.GetFrameOrientation(frame));
  }
  return positions;
}

MotionSummary SummarizeMotion(const orvane::HtrDocument& document,
                              const std::vector<HierarchyEntry>& hierarchy) {
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
  summary.bounds = MotionBounds(hierarchy, summary.most_frames);
  return summary;
}

}  // namespace cli
