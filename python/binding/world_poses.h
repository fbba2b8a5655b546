#pragma once

#include "formats/htr/document.h"
#include "python/binding/frame_array.h"

// Where the segments of a motion are in the world, and how they are turned, of all frames at once:
// NaN in frames that a segment lacks, and for segments that hang from no root. Nothing here needs
// the lock of the interpreter.

namespace binding {

enum class RotationForm {
  kMatrix,      // nine numbers, row after row
  kQuaternion,  // x, y, z and w, which is not negative
  kEuler,       // the angles about x, y and z in radians, in the order that files have
};

[[nodiscard]] FrameArray WorldPositions(const orvane::HtrDocument& document);
[[nodiscard]] FrameArray WorldRotations(const orvane::HtrDocument& document, RotationForm form);

}  // namespace binding
