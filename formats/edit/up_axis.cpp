#include "formats/edit/up_axis.h"

#include "formats/math/rotation_matrix3.h"
#include "formats/units/units.h"

namespace orvane {
namespace {

// The same numbers in other places, so that none of them is rounded, and 0 stays 0.
Vector3 Turned(const Vector3& place) { return Vector3(place.x(), place.z(), 0.0 - place.y()); }

EulerRotation Turned(const EulerRotation& rotation) {
  RotationMatrix3 matrix(rotation);
  for (unsigned axis = 0; axis < 3; ++axis) matrix[axis] = Turned(matrix[axis]);
  EulerRotation turned(0, 0, 0, OrvaneEulerOrder());
  turned.Set(matrix);
  for (unsigned index = 0; index < 3; ++index) turned[index] += 0.0;  // no -0
  return turned;
}

// A frame's rotation stands to the right of the base's, and is turned with it.
void Turn(HtrSegment& segment) {
  const Vector3 base = Turned(segment.GetBaseTranslation());
  const EulerRotation rotation = Turned(segment.GetBaseRotation());
  segment.SetBaseTranslation(base.x(), base.y(), base.z());
  segment.SetBaseRotation(rotation[0], rotation[1], rotation[2]);
  for (std::size_t frame = 0; frame < segment.GetNumFrames(); ++frame) {
    const Vector3 offset = Turned(segment.GetFrameTranslation(frame));
    (void)segment.SetFrameTranslation(frame, offset.x(), offset.y(), offset.z());
  }
}

}  // namespace

void TurnZUp(HtrDocument& document) {
  for (HtrSegment& segment : document.segments()) {
    if (segment.GetParent() == nullptr) Turn(segment);
  }
  document.SetGlobalAxisofGravity(kAxisY);
}

void TurnZUp(TRCDocument& document) {
  for (TRCMarker& marker : document.markers()) {
    for (std::size_t frame = 0; frame < marker.SampleCount(); ++frame) {
      double x = 0.0;
      double y = 0.0;
      double z = 0.0;
      if (marker.GetSample(frame, x, y, z)) (void)marker.SetSample(frame, x, z, 0.0 - y);
    }
  }
}

}  // namespace orvane
