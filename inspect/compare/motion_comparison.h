#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "formats/htr/document.h"
#include "formats/math/rotation_matrix3.h"
#include "inspect/compare/spread.h"
#include "inspect/compare/structure_comparison.h"

// How far the joints of two motions are from each other, frame by frame: in the world and in
// millimeters, and in degrees between their rotations against the parent. Base and frame are put
// together first, so that files which say the same in different words do not differ. Frames are
// told by their numbers in the files, segments and pairs by indices that count from 0. Nothing
// fails but for want of memory. May be called from any thread; the documents are only read.

namespace orvane {

// Angle between two rotations, 0 to 180 degrees. Angles down to the last bits of a double come out
// right, which the cosine alone would lose.
[[nodiscard]] double DegreesBetween(const RotationMatrix3& a, const RotationMatrix3& b);

// Of one segment, or of all.
struct MotionDifference {
  Spread position_mm;
  Spread orientation_deg;
  std::optional<std::int64_t> first_beyond;  // number of the first frame out of tolerance
};

struct MotionComparison {
  std::vector<MotionDifference> segments;  // one for each pair of the structure

  MotionDifference overall;

  // Which of the pairs the largest differences are of, and the first frame out of tolerance: the
  // first pair of several. Meaningless when nothing was compared, or nothing is beyond.
  std::size_t position_pair = 0;
  std::size_t orientation_pair = 0;
  std::size_t beyond_pair = 0;
};

// Compares the common frames of `structure`; the base positions, as a frame of number 0, when
// neither file holds a frame. REQUIRES: `structure` is that of `a` and `b`, which have not changed
// since, and `tolerance` is not negative.
[[nodiscard]] MotionComparison CompareMotion(const StructureComparison& structure,
                                             const HtrDocument& a, const HtrDocument& b,
                                             const Tolerance& tolerance);

}  // namespace orvane
