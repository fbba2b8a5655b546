#include "plugin/import_htr/import_budget.h"

#include <algorithm>
#include <cassert>
#include <vector>

namespace orvane {
namespace {

constexpr std::int64_t kTimesHeld = 4;
constexpr std::int64_t kAlwaysAllowed = 2'000'000;

}  // namespace

std::int64_t SegmentBudget(const HtrDocument& document, std::int64_t frame_count) {
  assert(frame_count >= 0);
  std::int64_t held = 0;
  for (const HtrSegment& segment : document.segments()) {
    held += 1 + static_cast<std::int64_t>(segment.GetNumFrames());
  }
  const std::int64_t with_repetitions = (kTimesHeld * held + kAlwaysAllowed) / (1 + frame_count);
  return std::max<std::int64_t>(document.GetNumSegments(), with_repetitions);
}

bool HierarchyFits(const HtrSegment& root, std::int64_t budget) {
  std::int64_t listed = 1;
  std::vector<const HtrSegment*> open{&root};
  while (!open.empty() && listed <= budget) {
    const HtrSegment& segment = *open.back();
    open.pop_back();
    listed += segment.GetNumChildren();
    for (int i = 0; i < segment.GetNumChildren(); ++i) open.push_back(segment.GetChild(i));
  }
  return listed <= budget;
}

}  // namespace orvane
