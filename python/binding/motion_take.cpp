#include "python/binding/motion_take.h"

#include <algorithm>
#include <unordered_map>

#include "formats/array/array_too_large.h"

namespace binding {
using orvane::HtrDocument;
using orvane::HtrSegment;

void MotionTake::Settle(const std::string& path) {
  try {
    values_ = document_.FramesView();
  } catch (const orvane::ArrayTooLarge& error) {
    throw TooLarge(path, error);
  }
}

std::size_t FrameCountOf(const HtrDocument& document) {
  std::size_t frames = 0;
  for (const HtrSegment& segment : document.segments()) {
    frames = std::max(frames, segment.GetNumFrames());
  }
  return frames;
}

std::vector<std::int64_t> ParentsOf(const HtrDocument& document) {
  std::unordered_map<const HtrSegment*, std::int64_t> index_of;
  for (const HtrSegment& segment : document.segments()) {
    index_of.emplace(&segment, static_cast<std::int64_t>(index_of.size()));
  }
  std::vector<std::int64_t> parents;
  parents.reserve(index_of.size());
  for (const HtrSegment& segment : document.segments()) {
    const auto found = index_of.find(segment.GetParent());
    parents.push_back(segment.GetIsRoot() || found == index_of.end() ? -1 : found->second);
  }
  return parents;
}

}  // namespace binding
