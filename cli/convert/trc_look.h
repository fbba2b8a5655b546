#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "cli/convert/conversion.h"
#include "cli/convert/conversion_order.h"
#include "formats/trc/document.h"
#include "inspect/check/checked_file.h"
#include "inspect/counts/frame_span.h"

// The one reading of a marker file before it is converted.

namespace cli {

struct TrcLook {
  std::string header;            // the lines before the frames
  orvane::TRCDocument document;  // has samples where these were asked for
  std::string refusal;           // the reader's message; empty when it takes the file
  std::int64_t frames = 0;       // lines that it takes for frames; of a refused file any number
  orvane::FrameSpan held;        // these frames by their numbers, where samples were asked for
  bool has_rates = false;        // whether the file reaches to the line that tells its rates
  bool has_samples = false;      // whether all of it was read
  std::optional<orvane::CheckedFile> checked;  // where a report is wished for
};

// Looks at the input of `conversion`: at all of its numbers where the report or the cutting of
// frames that `order` wishes for needs them, else only at where its lines end. Returns null, or
// throws a Failure, when it cannot be read. Throws an orvane::CheckFailure when nothing can be said
// of it.
[[nodiscard]] std::unique_ptr<TrcLook> LookAtInput(const Conversion& conversion,
                                                   const ConversionOrder& order);

}  // namespace cli
