#include "formats/edit/frame_cut.h"

#include <cassert>
#include <cstdint>

#include "formats/edit/document_copies.h"

namespace orvane {

void CutFrames(const HtrDocument& source, std::size_t begin, std::size_t end, HtrDocument& target) {
  assert(begin < end);
  CopyWithoutFrames(source, AllOf(source), target);
  target.SetStartFrame(source.GetStartFrame() + static_cast<std::int32_t>(begin));
  target.SetNumFrames(static_cast<std::uint32_t>(end - begin));
  auto copy = target.segments().begin();
  for (const HtrSegment& segment : source.segments()) AppendFrames(segment, begin, end, *copy++);
}

void CutFrames(const TRCDocument& source, std::size_t begin, std::size_t end, TRCDocument& target) {
  assert(begin < end);
  CopyWithoutFrames(source, AllOf(source), target);
  target.SetFirstFrame(source.FirstFrame() + static_cast<std::int32_t>(begin));
  target.SetNumFrames(static_cast<std::int32_t>(end - begin));
  auto copy = target.markers().begin();
  for (const TRCMarker& marker : source.markers()) AppendFrames(marker, begin, end, *copy++);
}

}  // namespace orvane
