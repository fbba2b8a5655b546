#pragma once

#include <cassert>
#include <cstddef>
#include <limits>
#include <vector>

#include "formats/math/plain_rotation.h"
#include "formats/pose/hierarchy.h"
#include "formats/pose/point.h"

// Where the joints of a skeleton are, frame after frame: base and frame put together, from the
// roots down. The time it takes is in proportion to the frames that the segments hold, however
// unevenly they hold them. Who asks for frame after frame is answered from a block of frames, which
// is worked out segment by segment, as a document holds them. Positions are x, y and z in the
// file's unit of length; frames and entries count from 0. Nothing fails but for want of memory. A
// walk is for one thread at a time; several may go over the same document, which they only read.

namespace orvane {

// What a walk is asked for. Where segments are takes less time than how they are turned as well,
// since nobody's place depends on the turn of a segment that none hangs from.
enum class PoseParts { kPositions, kPositionsAndRotations };

class PoseWalk {
 public:
  // Starts before the first frame. An entry that is its own parent is in the world, or in whatever
  // space its values mean. The segments must outlive the walk and not change. REQUIRES: in
  // `hierarchy` parents stand before their children.
  PoseWalk(std::vector<HierarchyEntry> hierarchy, PoseParts parts);

  // Moves on to `frame`. What hangs from a segment that does not hold it hangs from the next one
  // up. REQUIRES: `frame` is not before the one where the walk is.
  void MoveTo(std::size_t frame);

  // In place of MoveTo: every segment in its base position.
  void TakeBasePosition();

  // The entries that hold the frame, as indices into the hierarchy, parents first. Only these may
  // be asked for.
  [[nodiscard]] const std::vector<std::size_t>& Holding() const { return holding_; }

  // Where the origin of the segment is, in the world. REQUIRES: `entry` is one of Holding().
  [[nodiscard]] const Point& PositionOf(std::size_t entry) const {
    assert(entry < hierarchy_.size());
    return positions_[SlotOf(entry, offset_)];
  }

  // How the segment is turned against its parent. REQUIRES: `entry` is one of Holding(), and the
  // walk is of kPositionsAndRotations.
  [[nodiscard]] const PlainRotation& RotationOf(std::size_t entry) const {
    assert(!rotations_.empty());
    assert(entry < hierarchy_.size());
    return rotations_[SlotOf(entry, offset_)];
  }

  // How the segment is turned in the world. REQUIRES: as above.
  [[nodiscard]] const PlainRotation& WorldRotationOf(std::size_t entry) const {
    assert(!rotations_.empty());
    assert(entry < hierarchy_.size());
    return world_rotations_[TurnSlotOf(entry, offset_)];
  }

 private:
  static constexpr std::size_t kNotTurned = std::numeric_limits<std::size_t>::max();

  // Whether anybody needs to know how the entry is turned.
  [[nodiscard]] bool IsTurned(std::size_t entry) const { return turns_[entry] != kNotTurned; }
  void FindTurned(PoseParts parts);
  void DropEnded(std::size_t frame);
  void StartBlock(std::size_t frame);
  void PlaceInBlock(std::size_t entry);
  void TurnInBlock(std::size_t entry);
  void Place(std::size_t entry, std::size_t offset, const Point& translation);
  void Turn(std::size_t entry, std::size_t offset, const PlainRotation& rotation);

  // Where in the block a segment is at so many frames behind the first one.
  std::size_t SlotOf(std::size_t entry, std::size_t offset) const {
    return entry * most_frames_ + offset;
  }
  // The same among the turned ones. REQUIRES: the entry is turned.
  std::size_t TurnSlotOf(std::size_t entry, std::size_t offset) const {
    return turns_[entry] * most_frames_ + offset;
  }

  std::vector<HierarchyEntry> hierarchy_;
  std::vector<std::size_t> turns_;             // which of the turned entries it is, if any
  std::vector<PlainRotation> base_rotations_;  // of the turned ones
  std::vector<std::size_t> holding_;
  std::vector<std::size_t> above_;  // the next one up that holds the frame; itself for the topmost
  std::size_t next_end_ = 0;        // the first frame that some entry no longer holds

  std::size_t most_frames_;      // that a block has room for
  std::size_t block_begin_ = 0;  // the frames of the block: in all of them the same entries hold
  std::size_t block_end_ = 0;
  std::size_t offset_ = 0;  // where the walk is in the block
  std::vector<Point> positions_;
  std::vector<PlainRotation> rotations_;        // empty where nobody asks for them
  std::vector<PlainRotation> world_rotations_;  // of the turned ones
};

}  // namespace orvane
