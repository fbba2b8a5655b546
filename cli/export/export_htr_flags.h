#pragma once

#include <optional>

#include "cli/common/dialog_flags.h"
#include "host/desktop/settings.h"

// The flags of `orvane export` that are controls of the options dialog "ExportHTR".

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// Adds the flags to `verb`. Parsing the arguments adds a wish for each that is given to `wishes`,
// which must outlive the parsing.
void AddExportHtrFlags(CLI::App& verb, Wishes& wishes);

// What decides which frames there will be.
struct ExportChoices {
  bool animation = true;                   // export frames
  bool parent_transforms = true;           // keep what the nodes above the root do
  std::optional<orvane::FrameSpan> range;  // as typed; nothing for the scene's animation range
  std::int32_t offset = 0;                 // added to the numbers of frames

  friend bool operator==(const ExportChoices&, const ExportChoices&) = default;
};

// What comes of `wishes`, and without one of what the dialog finds in `settings`.
[[nodiscard]] ExportChoices ExportChoicesOf(const Wishes& wishes, const host::Settings& settings);

}  // namespace cli
