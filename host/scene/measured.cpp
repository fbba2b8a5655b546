#include "host/scene/measured.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace host {

void Measured::Replace(const Gap& span, const std::vector<Gap>& later) {
  assert(span.first <= span.last && AreInOrder(later));
  assert(later.empty() || (span.first <= later.front().first && later.back().last <= span.last));
  std::vector<Gap> before;
  std::vector<Gap> behind;
  for (const Gap& gap : gaps) {
    if (gap.first < span.first) before.push_back({gap.first, std::min(gap.last, span.first - 1)});
    if (gap.last > span.last) behind.push_back({std::max(gap.first, span.last + 1), gap.last});
  }
  gaps = std::move(before);
  gaps.insert(gaps.end(), later.begin(), later.end());
  gaps.insert(gaps.end(), behind.begin(), behind.end());
}

bool Measured::IsMissing(TimeValue tick) const {
  const auto candidate =
      std::lower_bound(gaps.begin(), gaps.end(), tick,
                       [](const Gap& gap, TimeValue time) { return gap.last < time; });
  return candidate != gaps.end() && candidate->first <= tick;
}

bool AreInOrder(const std::vector<Gap>& gaps) {
  const bool forward =
      std::all_of(gaps.begin(), gaps.end(), [](const Gap& gap) { return gap.first <= gap.last; });
  const auto overlap =
      std::adjacent_find(gaps.begin(), gaps.end(),
                         [](const Gap& gap, const Gap& next) { return next.first <= gap.last; });
  return forward && overlap == gaps.end();
}

}  // namespace host
