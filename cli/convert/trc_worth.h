#pragma once

#include <cstdint>
#include <optional>

#include "cli/convert/conversion.h"
#include "cli/convert/conversion_order.h"
#include "formats/trc/document.h"
#include "inspect/check/marker_naming.h"

// Whether a marker file is worth converting: the plug-in writes a block for every frame that the
// header announces, so a header that is wrong can ask for any amount of work.

namespace cli {

// Has `naming` go by the file `mapping`; leaves it when that is empty. Throws a Failure when it
// cannot be read.
void LoadMapping(const std::string& mapping, orvane::MarkerNaming& naming);

// Notes which markers of `document`, which is the input of `conversion`, are taken for others that
// `naming` names. A planned conversion is settled as refused, with the reason, when that is
// ambiguous; none is taken then.
void MatchNames(Conversion& conversion, const orvane::TRCDocument& document,
                const orvane::MarkerNaming& naming, orvane::NameMatching how);

// Settles `conversion` as unreadable, with the reason, when its input cannot be read.
void RequireInput(Conversion& conversion);

// Where the reader gets the camera rate of a file from.
enum class RateSource {
  kFile,        // its own third line
  kOthers,      // the file that it has read before, because it refuses this one earlier
  kOthersShort  // likewise, because this one ends earlier
};

// Settles `conversion` as refused, because its output would have the rate of another file.
void RefuseForeignRate(Conversion& conversion);

// How much the plug-in writes.
struct WrittenCounts {
  std::int64_t frames = 0;
  std::int64_t markers = 0;
  std::int64_t dropouts = 0;
};

struct Judgment {
  RateSource rate = RateSource::kFile;     // of what cannot be read, too
  std::optional<WrittenCounts> written{};  // unless the file was only looked over
};

// Looks at the input of `conversion`, whose markers get their names by `naming`, and notes in it
// how many markers it has, as dropped ones, which of them are taken for others of the mapping, and
// whether any is left. When that is ambiguous the conversion is refused. When frames are missing
// out of proportion it is refused; so is a file that is too short for a rate. One without markers
// to write is settled as empty when `order` needs some. Where a report is wished for, what is odd
// in the input, and in its markers against the mapping, is kept as the conversion's; when `order`
// forbids that, the conversion is refused. A file that cannot be read is settled; one that the
// reader refuses is left to the plug-in, which tells that.
Judgment JudgeInput(Conversion& conversion, const ConversionOrder& order,
                    const orvane::MarkerNaming& naming);

}  // namespace cli
