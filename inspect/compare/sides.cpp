#include "inspect/compare/sides.h"

#include <algorithm>

namespace orvane {
namespace {

void AddFrames(WhichFile file, const FrameSpan& own, const FrameSpan& other,
               std::vector<FramesOfOne>& result) {
  if (own.IsEmpty()) return;
  if (other.IsEmpty()) return result.push_back({file, own});
  const FrameSpan before{own.first, std::min(own.last, other.first - 1)};
  const FrameSpan after{std::max(own.first, other.last + 1), own.last};
  for (const FrameSpan& frames : {before, after}) {
    if (!frames.IsEmpty()) result.push_back({file, frames});
  }
}

}  // namespace

std::optional<FrameSpan> CommonFrames(const FrameSpan& a, const FrameSpan& b) {
  const FrameSpan common = Overlap(a, b);
  return common.IsEmpty() ? std::nullopt : std::optional(common);
}

std::vector<FramesOfOne> FramesOfOneAlone(const FrameSpan& a, const FrameSpan& b) {
  std::vector<FramesOfOne> result;
  AddFrames(WhichFile::kA, a, b, result);
  AddFrames(WhichFile::kB, b, a, result);
  return result;
}

}  // namespace orvane
