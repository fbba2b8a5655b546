#pragma once

#include <functional>
#include <memory>
#include <string>

#include "formats/text/byte_source.h"
#include "formats/trc/document.h"
#include "inspect/check/checked_file.h"
#include "inspect/check/trc_samples.h"

// The check of a marker file that is not wanted for anything else.

namespace orvane {

// What is found in a file of which no sample is kept.
struct LookedOverTrc {
  CheckedFile checked;
  trc::TrcSamples samples;  // what they come to; nothing of a file that is refused
};

// Opens the bytes of a file at their start.
using SourceOpener = std::function<std::unique_ptr<ByteSource>()>;

// As CheckTrc, without the samples, for which a document takes most of its time and memory. It has
// the header and the markers; only of a file with other frames than it announces, which is read
// twice for that, it may have the samples, too.
[[nodiscard]] LookedOverTrc LookOverTrc(const std::string& file, const SourceOpener& open,
                                        TRCDocument& document);

}  // namespace orvane
