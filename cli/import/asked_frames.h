#pragma once

#include "cli/common/file_kind.h"
#include "cli/import/import_flags.h"
#include "cli/import/imported_frames.h"
#include "host/scene/scene.h"
#include "inspect/report/frame_check.h"

// Which frames an import asks a file for, which of the scene's it keys, and what becomes of the
// scene's animation range: as the plug-in will do it, so that it can be told before.

namespace cli {

// Whether the dialog takes the range of `choices`, or there is none: it refuses one that reaches
// beyond the frames that the header announces, and one without frames.
[[nodiscard]] bool IsRangeTaken(const ImportedFrames& frames, const ImportChoices& choices);

// What becomes of `frames`, of a file of that `kind`, and of `scene`.
[[nodiscard]] orvane::FrameCircumstances CircumstancesOf(const ImportedFrames& frames,
                                                         const ImportChoices& choices,
                                                         FileKind kind, const host::Scene& scene);

}  // namespace cli
