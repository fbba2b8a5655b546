#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/common/failure.h"
#include "cli/common/file_kind.h"
#include "cli/common/input_file.h"
#include "cli/import/import_flags.h"
#include "cli/import/imported_frames.h"
#include "cli/import/marker_gaps.h"
#include "host/scene/recording.h"
#include "host/scene/scene.h"
#include "inspect/check/checked_file.h"
#include "inspect/report/apply_plan.h"
#include "inspect/report/report.h"

// What the program sees in a file before the plug-in imports it.

namespace cli {

// What can be done about a header that announces far too many frames.
inline constexpr char kImportLess[] =
    "Is \"NumFrames\" right? --range FROM:TO imports a part of them.";

struct Inspection {
  orvane::CheckedFile checked;  // nothing is found when that is not asked for
  orvane::AskedFrames asked = orvane::AskedFrames::kAnnounced;
  std::optional<Complaint>
      refusal;  // why the import would make nothing of the file, or far too much
  std::vector<std::string_view> refused_codes;  // of the findings that the refusal stands for
  std::vector<Complaint> complaints;            // of the file and the scene together
  ImportedFrames frames;
  // The names in the file, when it can be read and they are applied to a scene.
  std::optional<orvane::AppliedFile> applied{};
  std::optional<host::Recording> recording{};  // by the file; nothing when it cannot be read
  std::string changed{};                       // the bytes to import, when not those of the file
  std::optional<MarkerSamples> samples{};      // of a marker file
  // The size in millimeters that fits the markers, when new ones are made.
  std::optional<double> marker_size{};
};

// Reads `file` before it is imported by `choices` into `scene`, and finds what is odd in it if
// `is_checked`. `advice` stands in a refusal of too much work. Throws a Failure when the file
// cannot be read.
[[nodiscard]] Inspection Inspect(const InputFile& file, FileKind kind, const ImportChoices& choices,
                                 const host::Scene& scene, const std::string& advice,
                                 bool is_checked = true);

}  // namespace cli
