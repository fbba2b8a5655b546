#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "cli/convert/conversion.h"
#include "cli/convert/conversion_order.h"
#include "formats/trc/document.h"
#include "inspect/check/checked_file.h"
#include "inspect/check/trc_samples.h"
#include "inspect/counts/frame_span.h"

// The one reading of a marker file before it is converted.

namespace cli {

struct TrcLook {
  std::string header;            // the lines before the frames, where they are looked at
  orvane::TRCDocument document;  // its header and its markers
  std::string refusal;           // the reader's message; empty when it takes the file
  std::int64_t frames = 0;       // lines that it takes for frames; of a refused file any number
  orvane::FrameSpan held;        // these frames by their numbers, where all of it was read
  bool has_rates = false;        // whether the file reaches to the line that tells its rates
  std::optional<orvane::trc::TrcSamples> samples;  // where all of it was read
  std::optional<orvane::CheckedFile> checked;      // where a report is wished for
};

// Looks at the input of `conversion`: at all of its numbers where the report or the cutting of
// frames that `order` wishes for needs them, else only at where its lines end. Its header is looked
// at where markers get the names of a mapping. Returns null, or throws a Failure, when it cannot be
// read. Throws an orvane::CheckFailure when nothing can be said of it.
[[nodiscard]] std::unique_ptr<TrcLook> LookAtInput(const Conversion& conversion,
                                                   const ConversionOrder& order);

}  // namespace cli
