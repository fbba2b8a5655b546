#include "cli/imported_frames.h"

#include <optional>

namespace cli {
namespace {

// Whether the user wants some of the announced frames only.
bool IsPart(const ImportedFrames& frames, const ImportChoices& choices) {
  if (!choices.animation) return true;
  return choices.range && choices.range->first >= frames.announced.first &&
         choices.range->last <= frames.announced.last;
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
                                   const ImportChoices& choices, const std::string& advice) {
  if (IsOutOfProportion(frames.keyed.Count(), frames.counts)) {
    throw Failure{ExitStatus::kRefused, {{file, DescribeDifference(frames.counts), advice}}};
  }
  std::vector<Complaint> complaints;
  const auto difference = CompareCounts(file, frames, IsPart(frames, choices));
  if (difference) complaints.push_back(*difference);
  return complaints;
}

}  // namespace cli
