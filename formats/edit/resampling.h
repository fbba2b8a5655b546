#pragma once

#include <cstdint>

#include "formats/edit/rotation_path.h"
#include "formats/htr/document.h"
#include "formats/trc/document.h"

// Documents at other frame rates.
//
// Nothing fails but for want of memory. May be called from any thread, as long as no other one
// changes the documents.
namespace orvane {

// So many frames of a recording lie between two frames of another, as a fraction: 2 of 1 where
// every other frame is taken. REQUIRES: both are from 1 to 2^31 - 1, in lowest terms.
struct FrameStep {
  std::int64_t numerator = 1;
  std::int64_t denominator = 1;

  // Whether each frame of the new recording is one of the old.
  [[nodiscard]] bool IsWhole() const { return denominator == 1; }
};

// Makes `target`, which is empty, what `source` is at another rate: its frames lie `step` frames of
// `source` apart, from its first to the last that is not behind its end, and begin with the same
// number. What lies on a frame of `source` is that frame to the bit. What lies between two is
// interpolated: places and scales linearly, rotations along `path`; the sample of a marker that has
// a gap at one of the two is a dropout. As many frames are announced as are held, and the rate is
// for the caller to set.
void Resample(const HtrDocument& source, const FrameStep& step, RotationPath path,
              HtrDocument& target);
void Resample(const TRCDocument& source, const FrameStep& step, TRCDocument& target);

}  // namespace orvane
