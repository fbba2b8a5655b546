#include "inspect/report/frame_check.h"

#include <algorithm>

#include "formats/text/numbers.h"
#include "inspect/report/apply_rules.h"

namespace orvane {
namespace {

constexpr FindingPlace kNoPlace{0, 0};

// How many of `frames` are in `others`.
std::int64_t CountIn(const FrameSpan& others, const FrameSpan& frames) {
  const std::int64_t first = std::max(others.first, frames.first);
  const std::int64_t last = std::min(others.last, frames.last);
  return std::max<std::int64_t>(last - first + 1, 0);
}

void CheckAsked(const FrameSpan& asked, const FrameSpan& held, FindingList& findings) {
  const std::int64_t found = CountIn(held, asked);
  const std::int64_t count = asked.last - asked.first + 1;
  if (found == count) return;
  if (found > 0) {
    findings.Add(FindRule(apply::kRules, "apply-range-partly"), kNoPlace,
                 {FormatInt(count - found), FormatInt(count),
                  "There every marker goes to the origin; the file has " + TheFrames(held) + "."});
    return;
  }
  const std::string first = FormatInt(held.first);
  findings.Add(FindRule(apply::kRules, "apply-range-outside"), kNoPlace,
               {TheFrames(asked), RangeText(held),
                "Nothing is imported; the first line of the file counts as frame " + first +
                    ", and --range " + first + ":" + FormatInt(held.last) + " takes all of it."});
}

std::string NotPlayed(const FrameSpan& keyed, const FrameSpan& range) {
  const std::int64_t count = keyed.last - keyed.first + 1;
  const std::int64_t outside = count - CountIn(range, keyed);
  if (outside == count) {
    return "The motion is neither played nor exported until the range is set to its frames.";
  }
  return FormatInt(outside) + " of these " + FormatInt(count) +
         (outside == 1 ? " frames is" : " frames are") +
         " neither played nor exported until the range is set to all of them.";
}

bool IsReversed(const FrameSpan& range) { return range.last < range.first; }

bool IsIn(const FrameSpan& others, const FrameSpan& frames) {
  return others.first <= frames.first && frames.last <= others.last;
}

}  // namespace

CheckedFile CheckFrames(const std::string& name, std::string_view kind,
                        const FrameCircumstances& frames) {
  CheckedFile checked{name, kind, "", {}};
  if (frames.asked && frames.held) CheckAsked(*frames.asked, *frames.held, checked.findings);
  const FrameSpan& after = frames.range_after;
  if (IsReversed(after)) return checked;
  if (frames.keyed && !IsIn(after, *frames.keyed)) {
    checked.findings.Add(
        FindRule(apply::kRules, "apply-keys-outside-range"), kNoPlace,
        {TheFrames(*frames.keyed), RangeText(after), NotPlayed(*frames.keyed, after)});
  }
  if (frames.played && !IsIn(after, *frames.played)) {
    checked.findings.Add(
        FindRule(apply::kRules, "apply-range-shortened"), kNoPlace,
        {RangeText(frames.range_before) + (frames.changes_rate ? " at the new frame rate" : ""),
         RangeText(after), ""});
  }
  return checked;
}

}  // namespace orvane
