#include "tests/support/htr_skeleton_pose.h"

#include "formats/math/rotation_matrix3.h"

namespace test {
namespace {

using orvane::HtrSegment;
using orvane::RotationMatrix3;
using orvane::Vector3;

// Takes a point of the segment's own space to file space.
Vector3 ToFileSpace(Vector3 point, const HtrSegment* segment, std::size_t frame) {
  for (; segment != nullptr; segment = segment->GetParent()) {
    const RotationMatrix3 rotation(segment->GetFrameOrientation(frame));
    const Vector3 offset = segment->GetFramePosition(frame);
    Vector3 outer;
    for (unsigned int row = 0; row < 3; ++row) {
      outer[row] = offset[row] + rotation.Element(row, 0) * point.x() +
                   rotation.Element(row, 1) * point.y() + rotation.Element(row, 2) * point.z();
    }
    point = outer;
  }
  return point;
}

}  // namespace

Vector3 PositionOf(const HtrSegment& segment, std::size_t frame) {
  return ToFileSpace(Vector3(), &segment, frame);
}

Vector3 TipOf(const HtrSegment& segment, std::size_t frame) {
  return ToFileSpace(Vector3(0, segment.GetBoneLength(), 0), &segment, frame);
}

}  // namespace test
