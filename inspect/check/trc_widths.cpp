#include "inspect/check/trc_widths.h"

#include <algorithm>

#include "inspect/check/findings.h"

namespace orvane::trc {
namespace {

// More frames than one in so many are no accident.
constexpr std::size_t kFewOf = 10;

constexpr std::size_t kFieldsBeforeMarkers = 2;

bool IsNarrow(const TRCRowWidth& width, const TrcWidths& all) {
  return width.last_value > kFieldsBeforeMarkers && width.fields < all.usual &&
         width.last_value < all.usual_last_value;
}

}  // namespace

void WidthCounts::Lines::Add(const Line& line) {
  ++count;
  if (!line.ends_with_break) return;
  ++whole;
  if (first_whole.size() < FindingList::kMostKeptOfARule) first_whole.push_back(line.number);
}

void WidthCounts::GoTo(const TRCRowWidth& width) {
  width_ = width;
  current_ = &counts_[width];
}

std::size_t WidthCounts::MostCommon(std::size_t TRCRowWidth::*what) const {
  std::map<std::size_t, std::size_t> sums;
  for (const auto& [width, halves] : counts_) {
    for (const Lines& lines : halves) sums[width.*what] += lines.count;
  }
  const auto most = std::max_element(
      sums.begin(), sums.end(),
      [](const auto& left, const auto& right) { return left.second < right.second; });
  return most == sums.end() ? 0 : most->first;
}

TrcWidths WidthCounts::Sum() const {
  TrcWidths all;
  for (const auto& [width, halves] : counts_) {
    all.last_value = std::max(all.last_value, width.last_value);
    all.widest = std::max(all.widest, width.fields);
  }
  all.usual = MostCommon(&TRCRowWidth::fields);
  all.usual_last_value = MostCommon(&TRCRowWidth::last_value);
  FindNarrow(all);
  return all;
}

void WidthCounts::FindNarrow(TrcWidths& all) const {
  std::size_t frames = 0;
  std::size_t narrow = 0;
  for (const auto& [width, halves] : counts_) {
    for (const Lines& lines : halves) {
      frames += lines.count;
      if (!IsNarrow(width, all)) continue;
      narrow += lines.count;
      if (lines.whole > 0) all.narrow.push_back({width.fields, lines.whole, lines.first_whole});
    }
  }
  if (narrow * kFewOf > frames) all.narrow.clear();
}

}  // namespace orvane::trc
