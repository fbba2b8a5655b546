#include "inspect/report/cut_check.h"

#include <algorithm>

#include "formats/text/numbers.h"
#include "inspect/report/cut_rules.h"

namespace orvane {
namespace {

constexpr FindingPlace kNoPlace{0, 0};

std::int64_t CountOf(const FrameSpan& frames) { return frames.last - frames.first + 1; }

std::string TextOf(const FrameSpan& frames) {
  return FormatInt(frames.first) + " to " + FormatInt(frames.last);
}

}  // namespace

std::optional<FrameSpan> FramesToCut(const FrameSpan& asked, const std::optional<FrameSpan>& held) {
  if (!held) return std::nullopt;
  const FrameSpan both{std::max(asked.first, held->first), std::min(asked.last, held->last)};
  return both.first <= both.last ? std::optional(both) : std::nullopt;
}

void CheckCut(const FrameSpan& asked, const std::optional<FrameSpan>& held, CheckedFile& checked) {
  const std::optional<FrameSpan> both = FramesToCut(asked, held);
  if (!both) {
    return checked.findings.Add(
        FindRule(cutting::kRules, "cut-range-outside"), kNoPlace,
        {TextOf(asked), held ? TextOf(*held) : "none", "Nothing is made of the file."});
  }
  if (CountOf(*both) == CountOf(asked)) return;
  checked.findings.Add(FindRule(cutting::kRules, "cut-range-partly"), kNoPlace,
                       {FormatInt(CountOf(asked) - CountOf(*both)), FormatInt(CountOf(asked)),
                        "The frames " + TextOf(*both) + " are taken."});
}

}  // namespace orvane
