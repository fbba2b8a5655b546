#include "inspect/counts/frame_counts.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <limits>

#include "formats/text/numbers.h"

namespace orvane {
namespace {

// A header may promise this many frames, and this many times what the file holds: the work stays
// small, or in proportion.
constexpr std::int64_t kAlwaysAllowed = 100'000;
constexpr std::int64_t kTimesHeld = 10;

std::string Frames(std::int64_t count) {
  return FormatInt(count) + (count == 1 ? " frame" : " frames");
}

std::string Held(const FrameCounts& counts) {
  if (counts.most_held == 0) return "the file holds none";
  if (counts.fewest_held == counts.most_held)
    return "the file holds " + FormatInt(counts.most_held);
  return "its segments hold " + FormatInt(counts.fewest_held) + " to " +
         FormatInt(counts.most_held);
}

}  // namespace

std::string DescribeDifference(const FrameCounts& counts) {
  return "The header announces " + Frames(counts.announced) + ", but " + Held(counts);
}

bool IsOutOfProportion(std::int64_t frames, const FrameCounts& counts) {
  return frames > kAlwaysAllowed && frames > kTimesHeld * counts.most_held;
}

FrameCounts CountFrames(const HtrDocument& document) {
  assert(!document.segments().empty());
  std::size_t fewest = std::numeric_limits<std::size_t>::max();
  std::size_t most = 0;
  for (const HtrSegment& segment : document.segments()) {
    const std::size_t frames = segment.GetNumFrames();
    if (frames > 0) fewest = std::min(fewest, frames);
    most = std::max(most, frames);
  }
  return {document.GetNumFrames(), static_cast<std::int64_t>(std::min(fewest, most)),
          static_cast<std::int64_t>(most)};
}

std::string WhyOutOfProportion(std::int64_t frames, const FrameCounts& counts,
                               const MadeUpFrames& made_up) {
  if (IsOutOfProportion(frames, counts)) return DescribeDifference(counts);
  const std::string why = WhyOutOfProportion(made_up);
  return why.empty() ? "" : DescribeDifference(counts) + ": " + why;
}

}  // namespace orvane
