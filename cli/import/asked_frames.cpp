#include "cli/import/asked_frames.h"

#include <algorithm>
#include <optional>

#include "cli/import/key_counts.h"
#include "host/animation/animation_state.h"

namespace cli {
namespace {

using orvane::FrameCircumstances;
using orvane::FrameSpan;

// Rounded towards zero, as the plug-in does.
FrameSpan InFrames(const Interval& ticks, int ticks_per_frame) {
  return {ticks.Start() / ticks_per_frame, ticks.End() / ticks_per_frame};
}

// From the first to the last of `keys` as far as they are in `range`.
std::optional<FrameSpan> Played(const SceneKeys& keys, const FrameSpan& range,
                                int ticks_per_frame) {
  if (keys.count == 0) return std::nullopt;
  const FrameSpan all = InFrames({keys.first, keys.last}, ticks_per_frame);
  const FrameSpan played = {std::max(all.first, range.first), std::min(all.last, range.last)};
  return played.first <= played.last ? std::optional(played) : std::nullopt;
}

// The animation range that the plug-in sets for what it keys; nothing when it sets none.
std::optional<FrameSpan> RangeSet(const ImportedFrames& frames, const ImportChoices& choices,
                                  FileKind kind) {
  if (!choices.animation || frames.announced.Count() < 2) return std::nullopt;
  const std::int64_t end = frames.keyed.Count() + choices.offset;
  // Of a marker file it begins at frame 1, and ends a frame later.
  if (kind == FileKind::kTrc) return FrameSpan{1, end + 1};
  const std::int64_t first = frames.announced.first;
  return FrameSpan{first - (choices.base_position ? 1 : 0), first + end - 1};
}

}  // namespace

bool IsRangeTaken(const ImportedFrames& frames, const ImportChoices& choices) {
  if (!choices.range) return true;
  return choices.range->Count() > 0 && frames.announced.first <= choices.range->first &&
         choices.range->last <= frames.announced.last;
}

FrameCircumstances CircumstancesOf(const ImportedFrames& frames, const ImportChoices& choices,
                                   FileKind kind, const host::Scene& scene) {
  FrameCircumstances how;
  const std::int64_t first = frames.announced.first;
  const std::int64_t held = frames.counts.most_held;
  if (held > 0) how.held = FrameSpan{first, first + held - 1};
  const bool is_taken = IsRangeTaken(frames, choices);
  // A range of a motion file does not say which of its frames are taken.
  const bool is_outside = kind == FileKind::kTrc && choices.range && choices.range->Count() > 0 &&
                          how.held &&
                          Overlap(*choices.range, {first, first + held - 1}).Count() == 0;
  if (kind == FileKind::kTrc && choices.range && (is_taken || is_outside)) {
    how.asked = FrameSpan{choices.range->first, choices.range->last};
  }
  const host::AnimationState& animation = scene.Animation();
  const int ticks =
      choices.frame_rate_from_file ? host::TicksPerFrame(frames.rate) : animation.TicksPerFrame();
  how.changes_rate = ticks != animation.TicksPerFrame();
  how.range_before = InFrames(animation.Range(), ticks);
  const std::optional<FrameSpan> set = is_taken ? RangeSet(frames, choices, kind) : std::nullopt;
  how.range_after = set.value_or(how.range_before);
  how.played = Played(KeysIn(scene), how.range_before, ticks);
  const bool is_keyed = is_taken && !is_outside && frames.keyed.Count() > 0;
  if (is_keyed && (!choices.apply || !scene.Selection().empty())) {
    how.keyed = FrameSpan{frames.keyed.first + choices.offset, frames.keyed.last + choices.offset};
  }
  return how;
}

}  // namespace cli
