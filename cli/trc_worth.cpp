#include "cli/trc_worth.h"

#include <algorithm>
#include <optional>

#include "cli/frame_counts.h"
#include "platform/input_file.h"
#include "plugin/text/files.h"
#include "plugin/trc/document.h"
#include "plugin/trc/outline.h"

namespace cli {

void RequireInput(Conversion& conversion) {
  if (conversion.status != ConversionStatus::kPlanned) return;
  const std::string reason = platform::WhyUnreadable(conversion.input);
  if (reason.empty()) return;
  conversion.status = ConversionStatus::kUnreadable;
  conversion.errors.push_back({conversion.input, reason, ""});
}

void JudgeInput(Conversion& conversion) {
  RequireInput(conversion);
  const std::optional<std::string> bytes = orvane::ReadFileBytes(conversion.input);
  if (!bytes) return;
  const orvane::TRCOutline outline = orvane::OutlineTRC(*bytes);
  orvane::TRCDocument document;
  const std::string message = document.ReadBytes(outline.header, false);
  conversion.markers_dropped = document.MarkerCount();
  const auto held = static_cast<std::int64_t>(outline.frames);
  const FrameCounts counts{std::max(document.NumFrames(), 0), held, held};
  if (IsOutOfProportion(counts.announced, counts)) {
    conversion.status = ConversionStatus::kRefused;
    conversion.errors.push_back(
        {conversion.input, DescribeDifference(counts), "Is \"NumFrames\" right?"});
  } else if (message.empty() && counts.announced != held) {
    const bool are_missing = counts.announced > held;
    conversion.warnings.push_back({conversion.input, DescribeDifference(counts),
                                   are_missing ? "Missing frames are written as dropouts."
                                               : "Only the announced frames are written."});
  }
}

}  // namespace cli
