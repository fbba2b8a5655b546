#include "formats/pose/pose_walk.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace orvane {
namespace {

// So many places of a segment at a frame stay at hand for the next segment and the next frame.
constexpr std::size_t kMostPlaces = 512;

}  // namespace

PoseWalk::PoseWalk(std::vector<HierarchyEntry> hierarchy, PoseParts parts)
    : hierarchy_(std::move(hierarchy)),
      turns_(hierarchy_.size(), kNotTurned),
      holding_(hierarchy_.size()),
      above_(hierarchy_.size()),
      most_frames_(
          std::max<std::size_t>(1, kMostPlaces / std::max<std::size_t>(1, hierarchy_.size()))),
      positions_(hierarchy_.size() * most_frames_),
      rotations_(parts == PoseParts::kPositionsAndRotations ? positions_.size() : 0) {
  std::iota(holding_.begin(), holding_.end(), std::size_t{0});
  for (std::size_t entry = 0; entry < hierarchy_.size(); ++entry) {
    assert(hierarchy_[entry].parent <= entry);
    above_[entry] = hierarchy_[entry].parent;
  }
  FindTurned(parts);
}

// Of those that nobody hangs from, which may be nearly all, no rotation is held or worked out.
void PoseWalk::FindTurned(PoseParts parts) {
  std::vector<bool> is_turned(hierarchy_.size(), parts == PoseParts::kPositionsAndRotations);
  for (std::size_t entry = 0; entry < hierarchy_.size(); ++entry) {
    if (above_[entry] != entry) is_turned[above_[entry]] = true;
  }
  const auto count = std::count(is_turned.begin(), is_turned.end(), true);
  base_rotations_.reserve(static_cast<std::size_t>(count));
  for (std::size_t entry = 0; entry < hierarchy_.size(); ++entry) {
    if (!is_turned[entry]) continue;
    turns_[entry] = base_rotations_.size();
    base_rotations_.emplace_back(hierarchy_[entry].segment->GetBaseRotation());
  }
  world_rotations_.resize(base_rotations_.size() * most_frames_);
}

inline void PoseWalk::Place(std::size_t entry, std::size_t offset, const Point& translation) {
  const std::size_t above = above_[entry];
  positions_[SlotOf(entry, offset)] = above == entry
                                          ? translation
                                          : world_rotations_[TurnSlotOf(above, offset)].Moved(
                                                positions_[SlotOf(above, offset)], translation);
}

inline void PoseWalk::Turn(std::size_t entry, std::size_t offset, const PlainRotation& rotation) {
  if (!rotations_.empty()) rotations_[SlotOf(entry, offset)] = rotation;
  const std::size_t above = above_[entry];
  world_rotations_[TurnSlotOf(entry, offset)] =
      above == entry ? rotation : world_rotations_[TurnSlotOf(above, offset)] * rotation;
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
    if (IsTurned(entry)) Turn(entry, 0, base_rotations_[turns_[entry]]);
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
    if (IsTurned(entry)) TurnInBlock(entry);
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
  const PlainRotation& base = base_rotations_[turns_[entry]];
  for (std::size_t frame = block_begin_; frame < block_end_; ++frame) {
    const PlainRotation rotation(segment.GetFrameRotation(frame));
    Turn(entry, frame - block_begin_, base * rotation);
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
