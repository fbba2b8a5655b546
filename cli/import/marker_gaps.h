#pragma once

#include <cstdint>
#include <vector>

#include "cli/common/dialog_flags.h"
#include "formats/trc/document.h"
#include "host/scene/measured.h"

// The samples that a marker file does not have, in the frames that an import keys.

namespace cli {

// Of all markers, in the order of the file.
struct MarkerSamples {
  std::int64_t first_frame = 1;
  std::int64_t held = 0;  // samples in the file for each marker, missing ones included
  std::vector<std::vector<orvane::TRCMarker::Gap>> gaps;  // by marker; samples count from 0
};

[[nodiscard]] MarkerSamples SamplesOf(const orvane::TRCDocument& document);

// The frames from the first to the last one of each gap of marker number `marker` that gets keys,
// when the frames `keyed` do. Frames that are announced and not held are a gap too.
[[nodiscard]] std::vector<orvane::FrameSpan> KeyedGaps(const MarkerSamples& samples,
                                                       std::size_t marker,
                                                       const orvane::FrameSpan& keyed);

struct SampleCounts {
  std::int64_t all = 0;
  std::int64_t missing = 0;
};

// Those of all markers in the frames `keyed`.
[[nodiscard]] SampleCounts CountSamples(const MarkerSamples& samples,
                                        const orvane::FrameSpan& keyed);

}  // namespace cli
