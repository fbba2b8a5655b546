#pragma once

#include <cstdint>
#include <optional>

#include "cli/common/dialog_flags.h"
#include "cli/common/file_kind.h"
#include "cli/common/frame_span.h"
#include "host/desktop/settings.h"

// What an import is told to do by its dialog, as far as it decides how much there is to do.

namespace cli {

struct ImportChoices {
  bool apply = false;          // to objects of the scene, and make none
  bool animation = true;       // set keys for the frames
  bool selected_only = false;  // apply to nothing but what is selected
  bool frame_rate_from_file = false;
  std::int32_t offset = 0;         // frames that keys are moved by
  std::optional<FrameSpan> range;  // as typed; nothing for all frames

  // The frames that get keys when the file announces `announced`: none beside those, because the
  // dialog takes no others.
  FrameSpan Keyed(const FrameSpan& announced) const;
};

// What comes of `wishes`, and without one of what the dialog for files of that `kind` finds in
// `settings`.
ImportChoices ChoicesOf(const Wishes& wishes, FileKind kind, const host::Settings& settings);

}  // namespace cli
