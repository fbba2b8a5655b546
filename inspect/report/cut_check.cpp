#include "inspect/report/cut_check.h"

#include "formats/text/numbers.h"
#include "inspect/report/cut_rules.h"

namespace orvane {
namespace {

constexpr FindingPlace kNoPlace{0, 0};

}  // namespace

void CheckCut(const FrameSpan& asked, const FrameSpan& held, CheckedFile& checked) {
  const FrameSpan both = Overlap(asked, held);
  if (both.IsEmpty()) {
    return checked.findings.Add(FindRule(cutting::kRules, "cut-range-outside"), kNoPlace,
                                {TheFrames(asked), held.IsEmpty() ? "none" : RangeText(held),
                                 "Nothing is made of the file."});
  }
  const std::int64_t count = Closed(asked, held).Count();
  if (both.Count() == count) return;
  checked.findings.Add(FindRule(cutting::kRules, "cut-range-partly"), kNoPlace,
                       {FormatInt(count - both.Count()), FormatInt(count),
                        both.Count() == 1 ? "Frame " + FormatInt(both.first) + " is taken."
                                          : "The frames " + NumbersOf(both) + " are taken."});
}

}  // namespace orvane
