#pragma once

#include "formats/trc/document.h"

// A size for the balls that markers are drawn as, by which they are seen and do not hide each
// other. Nothing fails but for want of memory.

namespace orvane {

// 1.5 % of what the markers of a frame spread over, in round numbers and in millimeters, when the
// positions in `document` are multiplied by `scale`. The spread is the longest side of the box
// around the markers that are measured in a frame: the median of it over the frames that have any.
// 10 where that is 0.
[[nodiscard]] double ChooseMarkerSize(const TRCDocument& document, double scale);

// 1, 2, 2.5 or 5 times a power of ten: the one that is nearest to `size` in ratio.
// REQUIRES: `size` is positive and finite.
[[nodiscard]] double RoundSize(double size);

}  // namespace orvane
