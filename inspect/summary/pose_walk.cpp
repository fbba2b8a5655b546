#include "inspect/summary/pose_walk.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <utility>

namespace orvane {

PoseWalk::PoseWalk(std::vector<HierarchyEntry> hierarchy)
    : hierarchy_(std::move(hierarchy)),
      base_rotations_(hierarchy_.size()),
      holding_(hierarchy_.size()),
      above_(hierarchy_.size()),
      positions_(hierarchy_.size()),
      rotations_(hierarchy_.size()),
      world_rotations_(hierarchy_.size()) {
  std::iota(holding_.begin(), holding_.end(), std::size_t{0});
  for (std::size_t entry = 0; entry < hierarchy_.size(); ++entry) {
    assert(hierarchy_[entry].parent <= entry);
    base_rotations_[entry] = RotationMatrix3(hierarchy_[entry].segment->GetBaseRotation());
    above_[entry] = hierarchy_[entry].parent;
  }
}

void PoseWalk::MoveTo(std::size_t frame) {
  assert(frame >= frame_);
  frame_ = frame;
  if (frame >= next_end_) DropEnded(frame);
  for (const std::size_t entry : holding_) {
    const HtrSegment& segment = *hierarchy_[entry].segment;
    Place(entry, segment.GetFramePosition(frame),
          base_rotations_[entry] * RotationMatrix3(segment.GetFrameRotation(frame)));
  }
}

void PoseWalk::TakeBasePosition() {
  for (const std::size_t entry : holding_) {
    Place(entry, hierarchy_[entry].segment->GetBaseTranslation(), base_rotations_[entry]);
  }
}

// Whoever was below an entry that goes is now below the next one up. Parents come first, so that
// one step up is enough.
void PoseWalk::DropEnded(std::size_t frame) {
  next_end_ = std::numeric_limits<std::size_t>::max();
  const auto holds = [this, frame](std::size_t entry) {
    return frame < hierarchy_[entry].segment->GetNumFrames();
  };
  for (const std::size_t entry : holding_) {
    const std::size_t above = above_[entry];
    if (above != entry && !holds(above))
      above_[entry] = above_[above] == above ? entry : above_[above];
    if (holds(entry)) next_end_ = std::min(next_end_, hierarchy_[entry].segment->GetNumFrames());
  }
  holding_.erase(std::remove_if(holding_.begin(), holding_.end(),
                                [&holds](std::size_t entry) { return !holds(entry); }),
                 holding_.end());
}

void PoseWalk::Place(std::size_t entry, const Vector3& translation,
                     const RotationMatrix3& rotation) {
  rotations_[entry] = rotation;
  const std::size_t above = above_[entry];
  if (above == entry) {
    positions_[entry] = {translation.x(), translation.y(), translation.z()};
    world_rotations_[entry] = rotation;
    return;
  }
  const RotationMatrix3& parent = world_rotations_[above];
  Point& position = positions_[entry] = positions_[above];
  for (unsigned row = 0; row < 3; ++row) {
    for (unsigned column = 0; column < 3; ++column) {
      position[row] += parent.Element(row, column) * translation[column];
    }
  }
  world_rotations_[entry] = parent * rotation;
}

}  // namespace orvane
