#include "cli/rewrite/rewrite_proportion.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <system_error>

#include "cli/common/failure.h"
#include "formats/edit/tidying.h"
#include "inspect/counts/frame_span.h"
#include "inspect/counts/proportion.h"
#include "platform/path_text.h"

namespace cli {
namespace {

using orvane::FrameSpan;
using orvane::HtrDocument;
using orvane::TRCDocument;

void RequireNone(const std::string& why, const InputFile& input, const std::string& advice) {
  if (!why.empty()) throw Failure{ExitStatus::kRefused, {{input.name, why, advice}}};
}

// The frames that segments lack of those which are taken.
orvane::MadeUpFrames MadeUpIn(const HtrDocument& document, const RewriteOrder& order) {
  const FrameSpan held = FramesHeld(document);
  const FrameSpan taken = order.cut ? Overlap(*order.cut, held) : held;
  orvane::MadeUpFrames made_up{0, "segment", 0, 0, 0};
  for (const orvane::HtrSegment& segment : document.segments()) {
    const auto frames = static_cast<std::int64_t>(segment.GetNumFrames());
    const std::int64_t count =
        std::clamp<std::int64_t>(frames - (taken.first - held.first), 0, taken.Count());
    made_up.held += count;
    if (count == taken.Count()) continue;
    made_up.frames = std::max(made_up.frames, taken.Count() - count);
    ++made_up.receivers;
  }
  return made_up;
}

}  // namespace

void RequireProportion(const HtrDocument& document, const InputFile& input,
                       const RewriteOrder& order, OutputFormat format) {
  if (!HasAllInEveryFrame(format)) return;
  RequireNone(WhyOutOfProportion(MadeUpIn(document, order)), input,
              "Do its segments hold all their frames?");
}

void RequireProportion(const TRCDocument& document, const InputFile& input,
                       const RewriteOrder& order, OutputFormat /*format*/) {
  std::error_code error;
  const std::uintmax_t bytes = std::filesystem::file_size(platform::PathOf(input.path), error);
  if (error) return;
  const std::int64_t frames = order.cut ? Overlap(*order.cut, FramesHeld(document)).Count()
                                        : static_cast<std::int64_t>(FramesThatCount(document));
  RequireNone(orvane::WhyTooShort(static_cast<std::int64_t>(bytes), frames, document.MarkerCount()),
              input, "Do its lines hold all columns?");
}

}  // namespace cli
