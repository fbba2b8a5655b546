#include "formats/pose/pose_walk.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <utility>

namespace orvane {
namespace {

// So many places of a segment at a frame stay at hand for the next segment and the next frame.
constexpr std::size_t kMostPlaces = 512;

}  // namespace

PoseWalk::PoseWalk(std::vector<HierarchyEntry> hierarchy, PoseParts parts)
    : hierarchy_(std::move(hierarchy)),
      base_rotations_(hierarchy_.size()),
      is_turned_(hierarchy_.size(), parts == PoseParts::kPositionsAndRotations),
      holding_(hierarchy_.size()),
      above_(hierarchy_.size()),
      most_frames_(
          std::max<std::size_t>(1, kMostPlaces / std::max<std::size_t>(1, hierarchy_.size()))),
      positions_(hierarchy_.size() * most_frames_),
      rotations_(parts == PoseParts::kPositionsAndRotations ? positions_.size() : 0),
      world_rotations_(positions_.size()) {
  std::iota(holding_.begin(), holding_.end(), std::size_t{0});
  for (std::size_t entry = 0; entry < hierarchy_.size(); ++entry) {
    assert(hierarchy_[entry].parent <= entry);
    base_rotations_[entry].Set(hierarchy_[entry].segment->GetBaseRotation());
    const std::size_t above = above_[entry] = hierarchy_[entry].parent;
    if (above != entry) is_turned_[above] = true;
  }
}

inline void PoseWalk::Place(std::size_t entry, std::size_t offset, const Point& translation) {
  const std::size_t above = SlotOf(above_[entry], offset);
  positions_[SlotOf(entry, offset)] =
      above_[entry] == entry ? translation
                             : world_rotations_[above].Moved(positions_[above], translation);
}

inline void PoseWalk::Turn(std::size_t entry, std::size_t offset, const PlainRotation& rotation) {
  const std::size_t slot = SlotOf(entry, offset);
  if (!rotations_.empty()) rotations_[slot] = rotation;
  const std::size_t above = above_[entry];
  world_rotations_[slot] =
      above == entry ? rotation : world_rotations_[SlotOf(above, offset)] * rotation;
}

void PoseWalk::MoveTo(std::size_t frame) {
  assert(frame >= block_begin_ + offset_);
  if (frame >= next_end_) DropEnded(frame);
  if (frame >= block_end_) StartBlock(frame);
  offset_ = frame - block_begin_;
}

void PoseWalk::TakeBasePosition() {
  block_end_ = block_begin_;
  offset_ = 0;
  for (const std::size_t entry : holding_) {
    const Vector3 base = hierarchy_[entry].segment->GetBaseTranslation();
    Place(entry, 0, {base.x(), base.y(), base.z()});
    if (is_turned_[entry]) Turn(entry, 0, base_rotations_[entry]);
  }
}

// Twice as long as the block before where no frame was left out between them, so that of a few
// frames here and there no others are worked out.
void PoseWalk::StartBlock(std::size_t frame) {
  const std::size_t last_length = frame == block_end_ ? block_end_ - block_begin_ : 0;
  const std::size_t length = std::clamp<std::size_t>(2 * last_length, 1, most_frames_);
  block_begin_ = frame;
  block_end_ = frame + std::min(length, next_end_ - frame);
  for (const std::size_t entry : holding_) {
    PlaceInBlock(entry);
    if (is_turned_[entry]) TurnInBlock(entry);
  }
}

void PoseWalk::PlaceInBlock(std::size_t entry) {
  const HtrSegment& segment = *hierarchy_[entry].segment;
  const Vector3 base = segment.GetBaseTranslation();
  for (std::size_t frame = block_begin_; frame < block_end_; ++frame) {
    const Vector3 offset = segment.GetFrameTranslation(frame);
    Place(entry, frame - block_begin_,
          {offset.x() + base.x(), offset.y() + base.y(), offset.z() + base.z()});
  }
}

void PoseWalk::TurnInBlock(std::size_t entry) {
  const HtrSegment& segment = *hierarchy_[entry].segment;
  for (std::size_t frame = block_begin_; frame < block_end_; ++frame) {
    const PlainRotation rotation(segment.GetFrameRotation(frame));
    Turn(entry, frame - block_begin_, base_rotations_[entry] * rotation);
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

}  // namespace orvane
