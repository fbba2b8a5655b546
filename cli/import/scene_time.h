#pragma once

#include <cstdint>
#include <optional>

#include "cli/import/import_flags.h"
#include "host/scene/recording.h"
#include "host/scene/scene.h"
#include "inspect/report/apply_check.h"

// The time that viewers are shown. The host counts whole ticks in a frame, which many rates do not
// go into; a scene may say which rate its frames were recorded at.

namespace cli {

enum class ShownTime {
  kFile,  // the rate of the file
  kHost,  // the host's own
};

struct SceneTime {
  std::optional<host::Recording> recording;  // of the scene, when the import is done
  bool is_own = false;                       // viewers are shown the rate of the file
  // What becomes of the motion that was in the scene.
  std::optional<orvane::TimeChange> change{};
};

// Frames per second.
[[nodiscard]] double Value(const host::Rate& rate);

// The time of `scene` when `file`, whose rate the plug-in takes for `taken_rate`, has been imported
// into it by `choices`, as the user `wished` it or for want of a word: a scene without motion takes
// the file's, and another keeps its own as long as what comes to it has the same. Throws a Failure
// for wrong usage when the time of the file is wished for and cannot be had.
[[nodiscard]] SceneTime PlanTime(const host::Recording& file, std::int32_t taken_rate,
                                 const ImportChoices& choices, const host::Scene& scene,
                                 std::optional<ShownTime> wished);

}  // namespace cli
