#include "cli/imported_frames.h"

#include <algorithm>
#include <optional>

#include "cli/proportion.h"

namespace cli {
namespace {

// Whether the user wants some of the announced frames only.
bool IsPart(const ImportedFrames& frames, const ImportChoices& choices) {
  if (!choices.animation) return true;
  return choices.range && choices.range->first >= frames.announced.first &&
         choices.range->last <= frames.announced.last;
}

MadeUpFrames MadeUp(const ImportedFrames& frames, int ticks_per_frame) {
  const std::int64_t count =
      std::clamp<std::int64_t>(frames.end - frames.counts.most_held, 0, frames.keyed.Count());
  const KeyReceivers& receivers = frames.receivers;
  return {count, receivers.name, receivers.count, receivers.held,
          ticks_per_frame * receivers.controllers};
}

std::optional<Complaint> CompareCounts(const std::string& file, const ImportedFrames& frames,
                                       bool is_part) {
  const FrameCounts& counts = frames.counts;
  if (frames.end > counts.fewest_held) {
    return Complaint{file, DescribeDifference(counts),
                     "Missing frames are set to zero; --range FROM:TO leaves them out."};
  }
  if (counts.announced < counts.most_held && !is_part) {
    return Complaint{file, DescribeDifference(counts), "Only the announced frames are imported."};
  }
  return std::nullopt;
}

}  // namespace

std::vector<Complaint> JudgeFrames(const std::string& file, const ImportedFrames& frames,
                                   const ImportChoices& choices,
                                   const host::AnimationState& animation,
                                   const std::string& advice) {
  const int ticks_per_frame =
      choices.frame_rate_from_file ? host::TicksPerFrame(frames.rate) : animation.TicksPerFrame();
  const std::string why =
      WhyOutOfProportion(frames.keyed.Count(), frames.counts, MadeUp(frames, ticks_per_frame));
  if (!why.empty()) throw Failure{ExitStatus::kRefused, {{file, why, advice}}};
  std::vector<Complaint> complaints;
  const auto difference = CompareCounts(file, frames, IsPart(frames, choices));
  if (difference) complaints.push_back(*difference);
  return complaints;
}

}  // namespace cli
