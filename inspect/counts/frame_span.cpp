#include "inspect/counts/frame_span.h"

#include <cstddef>

#include "formats/text/numbers.h"

namespace orvane {
namespace {

FrameSpan Numbered(std::int64_t first, std::size_t count) {
  return {first, first + static_cast<std::int64_t>(count) - 1};
}

bool IsOne(const FrameSpan& frames) { return frames.first == frames.last; }

}  // namespace

std::string NumbersOf(const FrameSpan& frames) {
  const std::string first = FormatInt(frames.first);
  if (frames.last == kToLast) return first + " to the last";
  return IsOne(frames) ? first : first + " to " + FormatInt(frames.last);
}

std::string FramesText(const FrameSpan& frames) {
  return (IsOne(frames) ? "frame " : "frames ") + NumbersOf(frames);
}

std::string TheFrames(const FrameSpan& frames) {
  if (frames.first == kFromFirst) return "the frames up to " + FormatInt(frames.last);
  return (IsOne(frames) ? "" : "the ") + FramesText(frames);
}

std::string RangeText(const FrameSpan& frames) {
  return IsOne(frames) ? FramesText(frames) : NumbersOf(frames);
}

FrameSpan FramesHeld(const HtrDocument& document) {
  std::size_t most = 0;
  for (const HtrSegment& segment : document.segments()) {
    most = std::max(most, segment.GetNumFrames());
  }
  return Numbered(document.GetStartFrame(), most);
}

// All markers have a sample in every frame, be it a dropout.
FrameSpan FramesHeld(const TRCDocument& document) {
  const bool has_none = document.MarkerCount() == 0;
  return Numbered(document.FirstFrame(), has_none ? 0 : document.MarkerAt(0)->SampleCount());
}

// The first frame is read behind the blank line that may stand before it.
FrameSpan FramesHeld(const TRCOutliner& outline) {
  TRCDocument document;
  (void)document.ReadBytes(outline.Header() + '\n' + outline.FirstFrame() + '\n', false);
  return Numbered(document.FirstFrame(), outline.Frames());
}

}  // namespace orvane
