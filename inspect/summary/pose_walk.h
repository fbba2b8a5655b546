#pragma once

#include <array>
#include <cassert>
#include <cstddef>
#include <vector>

#include "formats/math/rotation_matrix3.h"
#include "formats/math/vector.h"
#include "inspect/summary/hierarchy.h"

// Where the joints of a skeleton are, frame after frame: base and frame put together, from the
// roots down. The time it takes is in proportion to the frames that the segments hold, however
// unevenly they hold them. Positions are x, y and z in the file's unit of length; frames and
// entries count from 0. Nothing fails but for want of memory.

namespace orvane {

using Point = std::array<double, 3>;

class PoseWalk {
 public:
  // Starts before the first frame. An entry that is its own parent is in the world, or in whatever
  // space its values mean. The segments must outlive the walk and not change. REQUIRES: in
  // `hierarchy` parents stand before their children.
  explicit PoseWalk(std::vector<HierarchyEntry> hierarchy);

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
    assert(entry < positions_.size());
    return positions_[entry];
  }

  // How the segment is turned against its parent. REQUIRES: `entry` is one of Holding().
  [[nodiscard]] const RotationMatrix3& RotationOf(std::size_t entry) const {
    assert(entry < rotations_.size());
    return rotations_[entry];
  }

 private:
  void DropEnded(std::size_t frame);
  void Place(std::size_t entry, const Vector3& translation, const RotationMatrix3& rotation);

  std::vector<HierarchyEntry> hierarchy_;
  std::vector<RotationMatrix3> base_rotations_;
  std::vector<std::size_t> holding_;
  std::vector<std::size_t> above_;  // the next one up that holds the frame; itself for the topmost
  std::vector<Point> positions_;
  std::vector<RotationMatrix3> rotations_;
  std::vector<RotationMatrix3> world_rotations_;
  std::size_t frame_ = 0;     // where the walk is
  std::size_t next_end_ = 0;  // the first frame that some entry no longer holds
};

}  // namespace orvane
