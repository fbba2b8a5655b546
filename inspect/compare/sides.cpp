#include "inspect/compare/sides.h"

#include <algorithm>

namespace orvane {
namespace {

void AddFrames(WhichFile file, const FrameNumbers& own, const FrameNumbers& other,
               std::vector<FramesOfOne>& result) {
  if (own.IsEmpty()) return;
  if (other.IsEmpty()) return result.push_back({file, own});
  const FrameNumbers before{own.first, std::min(own.last, other.first - 1)};
  const FrameNumbers after{std::max(own.first, other.last + 1), own.last};
  for (const FrameNumbers& frames : {before, after}) {
    if (!frames.IsEmpty()) result.push_back({file, frames});
  }
}

}  // namespace

std::optional<FrameNumbers> CommonFrames(const FrameNumbers& a, const FrameNumbers& b) {
  const FrameNumbers common{std::max(a.first, b.first), std::min(a.last, b.last)};
  return common.IsEmpty() ? std::nullopt : std::optional(common);
}

std::vector<FramesOfOne> FramesOfOneAlone(const FrameNumbers& a, const FrameNumbers& b) {
  std::vector<FramesOfOne> result;
  AddFrames(WhichFile::kA, a, b, result);
  AddFrames(WhichFile::kB, b, a, result);
  return result;
}

}  // namespace orvane
