#include "inspect/counts/dropouts.h"

namespace orvane {
namespace {

FrameSpan SpanOf(std::size_t begin, std::size_t end) {
  return {static_cast<std::int64_t>(begin), static_cast<std::int64_t>(end) - 1};
}

}  // namespace

std::int64_t CountDropouts(std::span<const FrameGap> gaps, std::size_t held,
                           const FrameSpan& frames) {
  std::int64_t count = frames.Count() - Overlap(frames, SpanOf(0, held)).Count();
  for (const FrameGap& gap : gaps) {
    count += Overlap(frames, SpanOf(gap.begin, gap.end)).Count();
  }
  return count;
}

}  // namespace orvane
