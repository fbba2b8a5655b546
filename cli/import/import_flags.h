#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "cli/common/dialog_flags.h"
#include "cli/common/dialog_user.h"
#include "cli/common/file_kind.h"
#include "host/desktop/settings.h"
#include "inspect/report/frame_check.h"

// The flags of `orvane import` that are controls of the options dialogs "ImportHTR" and
// "ImportTRC". What does the same in both has the same id, and the same flag.

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// Adds the flags to `verb`. Parsing the arguments adds a wish for each that is given to `wishes`,
// which must outlive the parsing.
void AddImportFlags(CLI::App& verb, std::vector<ControlWish>& wishes);

// The wish of "--frame-rate file".
[[nodiscard]] ControlWish FrameRateFromFile();

// Whether `wishes` say anything of the scene's frame rate.
[[nodiscard]] bool MentionFrameRate(const std::vector<ControlWish>& wishes);

// What an import is told to do by its dialog, as far as it decides how much there is to do.
struct ImportChoices {
  bool apply = false;          // to objects of the scene, and make none
  bool animation = true;       // set keys for the frames
  bool base_position = false;  // and for the base position
  bool selected_only = false;  // apply to nothing but what is selected
  bool frame_rate_from_file = false;
  double scale = 1.0;                      // that lengths are multiplied by
  std::int32_t offset = 0;                 // frames that keys are moved by
  std::optional<orvane::FrameSpan> range;  // as typed; nothing for all frames
  std::optional<orvane::FrameSpan> cut;    // no dialog asks: the only frames to take of the file
  bool turned_up = false;  // no dialog asks: heights lie along Z, and are turned before

  // The frames that get keys when the file announces `announced`: none beside those, because the
  // dialog takes no others.
  [[nodiscard]] orvane::FrameSpan Keyed(const orvane::FrameSpan& announced) const;

  friend bool operator==(const ImportChoices&, const ImportChoices&) = default;
};

// What comes of `wishes`, and without one of what the dialog for files of that `kind` finds in
// `settings`.
[[nodiscard]] ImportChoices ChoicesOf(const Wishes& wishes, FileKind kind,
                                      const host::Settings& settings);

}  // namespace cli
