#include "inspect/check/trc_parts.h"

#include <algorithm>
#include <cassert>

namespace orvane::trc {

void TrcParts::AddFrame(TRCPlace place) {
  const bool follows = !runs_.empty() && place.column == runs_.back().column &&
                       place.line == PlaceIn(runs_.back(), frames_).line;
  if (!follows) runs_.push_back({frames_, place.line, place.column});
  ++frames_;
}

void TrcParts::KeepFrames(std::size_t count) {
  while (!runs_.empty() && runs_.back().frame >= count) runs_.pop_back();
  frames_ = count;
}

TRCPlace TrcParts::PlaceOfFrame(std::size_t index) const {
  assert(index < frames_);
  const auto behind =
      std::upper_bound(runs_.begin(), runs_.end(), index,
                       [](std::size_t frame, const Run& run) { return frame < run.frame; });
  return PlaceIn(*std::prev(behind), index);
}

}  // namespace orvane::trc
