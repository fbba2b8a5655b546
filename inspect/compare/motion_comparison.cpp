#include "inspect/compare/motion_comparison.h"

#include <array>
#include <cassert>
#include <cmath>

#include "formats/pose/pose_walk.h"
#include "formats/units/units.h"

namespace orvane {
namespace {

constexpr std::size_t kNoPair = std::numeric_limits<std::size_t>::max();

double MillimetersPerUnit(const HtrDocument& document) {
  return LengthFactor(document.GetCalibrationUnits(), orvane::kMillimeters);
}

class MotionComparer {
 public:
  MotionComparer(const StructureComparison& structure, const HtrDocument& a, const HtrDocument& b,
                 const Tolerance& tolerance)
      : structure_(structure),
        tolerance_(tolerance),
        walk_a_(structure.hierarchy_a, PoseParts::kPositionsAndRotations),
        walk_b_(structure.hierarchy_b, PoseParts::kPositionsAndRotations),
        start_a_(a.GetStartFrame()),
        start_b_(b.GetStartFrame()),
        mm_per_unit_a_(MillimetersPerUnit(a)),
        mm_per_unit_b_(MillimetersPerUnit(b)),
        pair_of_(structure.hierarchy_a.size(), kNoPair) {
    for (std::size_t pair = 0; pair < structure.pairs.size(); ++pair) {
      pair_of_[structure.pairs[pair].in_a] = pair;
    }
    result_.segments.resize(structure.pairs.size());
  }

  MotionComparison Run() {
    if (structure_.at_rest) CompareBasePositions();
    if (structure_.common_frames) CompareFrames(*structure_.common_frames);
    SumUp();
    return std::move(result_);
  }

 private:
  void CompareBasePositions() {
    walk_a_.TakeBasePosition();
    walk_b_.TakeBasePosition();
    ComparePose(0, 0);
  }

  void CompareFrames(const FrameSpan& frames) {
    for (std::int64_t number = frames.first; number <= frames.last; ++number) {
      const auto index_b = static_cast<std::size_t>(number - start_b_);
      walk_a_.MoveTo(static_cast<std::size_t>(number - start_a_));
      walk_b_.MoveTo(index_b);
      ComparePose(number, index_b);
    }
  }

  // The segments that hold the frame in both files.
  void ComparePose(std::int64_t number, std::size_t index_b) {
    for (const std::size_t entry : walk_a_.Holding()) {
      const std::size_t pair = pair_of_[entry];
      if (pair == kNoPair) continue;
      const std::size_t entry_b = structure_.pairs[pair].in_b;
      const std::size_t held_b = structure_.hierarchy_b[entry_b].segment->GetNumFrames();
      if (!structure_.at_rest && index_b >= held_b) continue;
      ComparePair(entry, entry_b, number, result_.segments[pair]);
    }
  }

  void ComparePair(std::size_t entry_a, std::size_t entry_b, std::int64_t number,
                   MotionDifference& difference) const {
    const double distance_mm =
        MillimetersBetween(walk_a_.PositionOf(entry_a), walk_b_.PositionOf(entry_b));
    const double angle_deg = NumberOrInfinity(
        DegreesBetween(walk_a_.RotationOf(entry_a).Matrix(), walk_b_.RotationOf(entry_b).Matrix()));
    Add(distance_mm, number, difference.position_mm);
    Add(angle_deg, number, difference.orientation_deg);
    const bool is_beyond = distance_mm > tolerance_.mm || angle_deg > tolerance_.deg;
    if (is_beyond && !difference.first_beyond) difference.first_beyond = number;
  }

  double MillimetersBetween(const Point& a, const Point& b) const {
    std::array<double, 3> offset{};
    for (std::size_t axis = 0; axis < 3; ++axis) {
      offset[axis] = a[axis] * mm_per_unit_a_ - b[axis] * mm_per_unit_b_;
    }
    return NumberOrInfinity(std::hypot(offset[0], offset[1], offset[2]));
  }

  void SumUp() {
    MotionDifference& overall = result_.overall;
    for (std::size_t pair = 0; pair < result_.segments.size(); ++pair) {
      const MotionDifference& segment = result_.segments[pair];
      if (Merge(segment.position_mm, overall.position_mm)) result_.position_pair = pair;
      if (Merge(segment.orientation_deg, overall.orientation_deg)) result_.orientation_pair = pair;
      if (!segment.first_beyond) continue;
      if (overall.first_beyond && *overall.first_beyond <= *segment.first_beyond) continue;
      overall.first_beyond = segment.first_beyond;
      result_.beyond_pair = pair;
    }
  }

  const StructureComparison& structure_;
  const Tolerance tolerance_;
  PoseWalk walk_a_;
  PoseWalk walk_b_;
  const std::int64_t start_a_;
  const std::int64_t start_b_;
  const double mm_per_unit_a_;
  const double mm_per_unit_b_;
  std::vector<std::size_t> pair_of_;  // by entry of A
  MotionComparison result_;
};

}  // namespace

// The rotation from one to the other has the sine of its angle in its antisymmetric part and the
// cosine in its trace.
double DegreesBetween(const RotationMatrix3& a, const RotationMatrix3& b) {
  const RotationMatrix3 turn = a.Transposed() * b;
  const double twice_sine =
      std::hypot(turn.Element(2, 1) - turn.Element(1, 2), turn.Element(0, 2) - turn.Element(2, 0),
                 turn.Element(1, 0) - turn.Element(0, 1));
  const double twice_cosine = turn.Element(0, 0) + turn.Element(1, 1) + turn.Element(2, 2) - 1.0;
  return std::atan2(twice_sine, twice_cosine) * orvane::kDegreesPerRadian;
}

MotionComparison CompareMotion(const StructureComparison& structure, const HtrDocument& a,
                               const HtrDocument& b, const Tolerance& tolerance) {
  assert(tolerance.mm >= 0 && tolerance.deg >= 0);
  assert(structure.hierarchy_a.size() == a.segments().size());
  assert(structure.hierarchy_b.size() == b.segments().size());
  return MotionComparer(structure, a, b, tolerance).Run();
}

}  // namespace orvane
