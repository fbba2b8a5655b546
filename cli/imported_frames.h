#pragma once

#include <string>
#include <vector>

#include "cli/failure.h"
#include "cli/frame_counts.h"
#include "cli/import_choices.h"

// The frames of a file as an import takes them: whether it makes too many up, and what becomes of
// those that it cannot take.

namespace cli {

struct ImportedFrames {
  FrameCounts counts;
  FrameSpan announced;   // by their numbers
  FrameSpan keyed;       // those of them that get keys
  std::int64_t end = 0;  // the place in the file, counted from 0, behind the last that is keyed
};

// What is to be said of `frames` of `file` before they are imported by `choices`. Throws a Failure,
// with `advice`, when that takes far more frames than are held.
std::vector<Complaint> JudgeFrames(const std::string& file, const ImportedFrames& frames,
                                   const ImportChoices& choices, const std::string& advice);

}  // namespace cli
