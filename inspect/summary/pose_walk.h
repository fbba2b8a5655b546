#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "formats/math/rotation_matrix3.h"
#include "formats/math/vector.h"
#include "inspect/summary/hierarchy.h"

// Where the joints of a skeleton are, frame after frame: base and frame put together, from the
// roots down. The time it takes is in proportion to the frames that the segments hold, however
// unevenly they hold them.

namespace orvane {

using Point = std::array<double, 3>;

class PoseWalk {
 public:
  // Starts before the first frame. In `hierarchy` parents stand before their children; an entry
  // that is its own parent is in the world, or in whatever space its values mean. The segments must
  // outlive the walk and not change.
  explicit PoseWalk(std::vector<HierarchyEntry> hierarchy);

  // Moves on to `frame`, counted from 0 and not before the one where the walk is. What hangs from a
  // segment that does not hold it hangs from the next one up.
  void MoveTo(std::size_t frame);

  // In place of MoveTo: every segment in its base position.
  void TakeBasePosition();

  // The entries that hold the frame, as indices into the hierarchy, parents first. Only these may
  // be asked for.
  const std::vector<std::size_t>& Holding() const { return holding_; }

  // Where the origin of the segment is, in the world and the file's unit.
  const Point& PositionOf(std::size_t entry) const { return positions_[entry]; }

  // How the segment is turned against its parent.
  const RotationMatrix3& RotationOf(std::size_t entry) const { return rotations_[entry]; }

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
  std::size_t next_end_ = 0;  // the first frame that some entry no longer holds
};

}  // namespace orvane
