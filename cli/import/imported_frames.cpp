#include "cli/import/imported_frames.h"

#include <algorithm>
#include <limits>
#include <optional>

#include "formats/text/numbers.h"
#include "inspect/counts/proportion.h"

namespace cli {
namespace {

using orvane::AskedFrames;
using orvane::FormatInt;
using orvane::FrameCounts;
using orvane::MadeUpFrames;
using orvane::WhyOutOfProportion;

// Whether the user wants some of the announced frames only.
bool IsPart(const ImportedFrames& frames, const ImportChoices& choices) {
  if (!choices.animation) return true;
  return choices.range && choices.range->first >= frames.announced.first &&
         choices.range->last <= frames.announced.last;
}

// The frames that the host's time of 32 bits reaches.
orvane::FrameSpan HostTime(int ticks_per_frame) {
  return {std::numeric_limits<TimeValue>::min() / ticks_per_frame,
          std::numeric_limits<TimeValue>::max() / ticks_per_frame};
}

orvane::FrameSpan Moved(const orvane::FrameSpan& frames, std::int64_t offset) {
  return {frames.first + offset, frames.last + offset};
}

MadeUpFrames MadeUp(const ImportedFrames& frames, std::int64_t offset, int ticks_per_frame) {
  const std::int64_t count =
      std::clamp<std::int64_t>(frames.end - frames.counts.most_held, 0, frames.keyed.Count());
  const orvane::FrameSpan last = Moved({frames.keyed.last - count + 1, frames.keyed.last}, offset);
  const KeyReceivers& receivers = frames.receivers;
  return {Overlap(last, HostTime(ticks_per_frame)).Count(), receivers.name, receivers.count,
          receivers.held, ticks_per_frame * receivers.controllers};
}

// What is asked for, unless it is far too much.
AskedFrames Asked(const ImportedFrames& frames, bool is_part) {
  const FrameCounts& counts = frames.counts;
  if (frames.end > counts.fewest_held) return AskedFrames::kMissing;
  const bool are_left_out = counts.announced < counts.most_held && !is_part;
  return are_left_out ? AskedFrames::kAnnounced : AskedFrames::kHeld;
}

std::optional<Complaint> FindLost(const std::string& file, const orvane::FrameSpan& moved,
                                  int ticks_per_frame) {
  const orvane::FrameSpan time = HostTime(ticks_per_frame);
  const std::int64_t lost = moved.Count() - Overlap(moved, time).Count();
  if (lost == 0) return std::nullopt;
  return Complaint{file,
                   FormatInt(lost) + " of " + FormatInt(moved.Count()) +
                       (lost == 1 ? " frames gets" : " frames get") +
                       " no keys: the motion would go from frame " + FormatInt(moved.first) +
                       " to " + FormatInt(moved.last) + ", and the host's time from " +
                       FormatInt(time.first) + " to " + FormatInt(time.last),
                   "--offset moves the motion."};
}

}  // namespace

FramesVerdict JudgeFrames(const std::string& file, const ImportedFrames& frames,
                          const ImportChoices& choices, const host::AnimationState& animation) {
  const int ticks_per_frame =
      choices.frame_rate_from_file ? host::TicksPerFrame(frames.rate) : animation.TicksPerFrame();
  std::string excess = WhyOutOfProportion(frames.keyed.Count(), frames.counts,
                                          MadeUp(frames, choices.offset, ticks_per_frame));
  const AskedFrames asked =
      excess.empty() ? Asked(frames, IsPart(frames, choices)) : AskedFrames::kAnnounced;
  return {std::move(excess), FindLost(file, Moved(frames.keyed, choices.offset), ticks_per_frame),
          asked};
}

}  // namespace cli
