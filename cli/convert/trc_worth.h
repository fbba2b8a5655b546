#pragma once

#include "cli/common/report_flags.h"
#include "cli/convert/conversion.h"
#include "inspect/check/marker_naming.h"

// Whether a marker file is worth converting: the plug-in writes a block for every frame that the
// header announces, so a header that is wrong can ask for any amount of work.

namespace cli {

// Has `naming` go by the file `mapping`; leaves it when that is empty. Throws a Failure when it
// cannot be read.
void LoadMapping(const std::string& mapping, orvane::MarkerNaming& naming);

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

// Looks at the input of `conversion` and notes in it how many markers it has, as dropped ones. When
// frames are missing out of proportion it is refused; so is a file that is too short for a rate. It
// gets a warning when `naming` leaves no marker to write, or makes one name of several. A file that
// cannot be read is settled; one that the reader refuses is left to the plug-in, which tells that.
// Returns kFile when nothing is to be read.
RateSource JudgeInput(Conversion& conversion, const orvane::MarkerNaming& naming);

// Finds what is odd in the input of `conversion`, and in its markers against the file `mapping`,
// unless that is empty, and keeps it as the conversion's report. When `manner` forbids what is
// found, or the conversion has a warning and the user is strict, it is settled as refused; and as
// unreadable when its input cannot be checked.
void ReportOnInput(Conversion& conversion, const std::string& mapping, const ReportManner& manner);

}  // namespace cli
