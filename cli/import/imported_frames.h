#pragma once

#include <optional>
#include <string>

#include "cli/common/failure.h"
#include "cli/import/import_flags.h"
#include "host/animation/animation_state.h"
#include "inspect/counts/frame_counts.h"
#include "inspect/report/report.h"

// The frames of a file as an import takes them: whether it makes too many up, and what becomes of
// those that it cannot take.

namespace cli {

// Who gets keys in every frame.
struct KeyReceivers {
  const char* name = "";  // of one: "segment" or "marker"
  std::int64_t count = 0;
  std::int64_t held = 0;         // frames in the file, those of each segment or marker added up
  std::int64_t controllers = 1;  // that are keyed for each
};

struct ImportedFrames {
  orvane::FrameCounts counts;
  orvane::FrameSpan announced;  // by their numbers
  orvane::FrameSpan keyed;      // those of them that get keys
  std::int64_t end = 0;   // the place in the file, counted from 0, behind the last that is keyed
  std::int32_t rate = 0;  // frames per second, as the file has it
  KeyReceivers receivers;
};

struct FramesVerdict {
  std::string excess;  // why the import takes far more frames than are held; empty when it does not
  std::optional<Complaint> lost;  // frames that come to lie outside the host's time
  orvane::AskedFrames asked = orvane::AskedFrames::kAnnounced;
};

// What is to be said of `frames` of `file` before they are imported by `choices` into a scene with
// that `animation`.
[[nodiscard]] FramesVerdict JudgeFrames(const std::string& file, const ImportedFrames& frames,
                                        const ImportChoices& choices,
                                        const host::AnimationState& animation);

}  // namespace cli
