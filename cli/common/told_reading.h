#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/common/input_file.h"
#include "cli/common/report_flags.h"
#include "formats/htr/document.h"
#include "formats/trc/document.h"
#include "inspect/counts/frame_span.h"
#include "inspect/report/report.h"

// Reading files that are looked at: each is opened and read once, and told of meanwhile.

namespace cli {

// What becomes of what codes tell of, a sentence each.
using Consequences = std::vector<std::pair<std::string_view, std::string>>;

// What the reading is for, which says what findings mean.
struct Purpose {
  orvane::Action action = orvane::Action::kInspect;
  orvane::ActionOptions options{};
  std::vector<std::string_view> settled{};  // codes of what is seen to, which are not told
  Consequences consequences{};              // in the place of those that the action has
};

// Reads `file` into `document`, which is empty, tells what is odd in it, and returns that. Throws a
// Failure when it cannot be read, is refused or holds no segments; the file of reports that
// `manner` may name then has this one behind the `reports` of files before it. Without its motion
// what is odd is not looked for, nor when `manner` says so. Of a file that is to be `cut`, what is
// odd is told of the whole, and the document has these frames alone; one that has none is refused.
enum class Motion { kRead, kLeftOut };
orvane::FileReport ReadAndTell(orvane::HtrDocument& document, const InputFile& file, Motion motion,
                               const ReportManner& manner,
                               std::vector<orvane::FileReport> reports = {},
                               const std::optional<orvane::FrameSpan>& cut = {},
                               const Purpose& purpose = {});

// The same of the marker file `file`, which is to hold markers.
orvane::FileReport ReadAndTell(orvane::TRCDocument& document, const InputFile& file,
                               const ReportManner& manner,
                               std::vector<orvane::FileReport> reports = {},
                               const std::optional<orvane::FrameSpan>& cut = {},
                               const Purpose& purpose = {});

}  // namespace cli
