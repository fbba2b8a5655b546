#pragma once

#include <string>
#include <string_view>

#include "cli/common/failure.h"
#include "cli/common/report_flags.h"
#include "formats/htr/document.h"
#include "formats/trc/document.h"
#include "inspect/report/report.h"

// Reading files that are looked at: each is opened and read once, and told of meanwhile.

namespace cli {

// That `file` is refused, as `text` says, with advice.
[[nodiscard]] Failure Refused(const std::string& file, const std::string& text);

// Reads `file` into `document`, which is empty, tells what is odd in it, and returns that. Throws a
// Failure when it cannot be read or is refused. Without its motion it is not looked for, and
// nothing when `manner` says so.
enum class Motion { kRead, kLeftOut };
orvane::FileReport ReadAndTell(orvane::HtrDocument& document, const std::string& file,
                               Motion motion, const ReportManner& manner);

// The same of the marker file `file`, whose `bytes` these are.
orvane::FileReport ReadAndTell(orvane::TRCDocument& document, const std::string& file,
                               std::string_view bytes, const ReportManner& manner);

}  // namespace cli
