#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "inspect/check/checked_file.h"
#include "inspect/counts/frame_span.h"

// What is to be said of the frames that an import asks a file for, and of those that it gives keys
// in the scene. The findings have no place in the file. Nothing fails but for want of memory.

namespace orvane {

struct FrameCircumstances {
  std::optional<FrameSpan> held{};    // the file's frames, as they are numbered; nothing for none
  std::optional<FrameSpan> asked{};   // those of a marker file that --range asks for, alone
  std::optional<FrameSpan> keyed{};   // the scene's frames that get keys
  FrameSpan range_before{};           // the scene's animation range
  FrameSpan range_after{};            // the same, as it will be
  bool changes_rate = false;          // all frames of the scene are counted at the new one
  std::optional<FrameSpan> played{};  // from its first to its last key in the range before
};

// The findings of the codes "apply-range-outside", "apply-range-partly", "apply-keys-outside-range"
// and "apply-range-shortened", of the file known as `name` of that `kind`.
[[nodiscard]] CheckedFile CheckFrames(const std::string& name, std::string_view kind,
                                      const FrameCircumstances& frames);

}  // namespace orvane
