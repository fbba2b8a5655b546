#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/common/failure.h"
#include "cli/common/file_kind.h"
#include "cli/common/input_file.h"
#include "cli/common/report_flags.h"
#include "cli/import/application.h"
#include "cli/import/import_flags.h"
#include "cli/import/marker_gaps.h"
#include "cli/import/scene_time.h"
#include "host/scene/measured.h"
#include "host/scene/scene.h"
#include "inspect/report/report.h"
#include "inspect/report/selection_check.h"

// What the user is told of a file, and of the scene that it is applied to, before an import.

namespace cli {

struct ToldImport {
  orvane::FileReport report;
  bool has_errors = false;            // though the plug-in may take the file
  bool can_be_saved = true;           // as far as these errors say
  std::vector<Complaint> complaints;  // of the file and the scene together, not told yet
  orvane::FrameSpan keyed;            // the frames of the file that get keys
  std::string changed;                // the bytes to import, when they are not those of the file
  bool keeps_range = false;           // one frame sets no animation range
  std::optional<MarkerSamples> samples{};      // of a marker file
  orvane::ShownGaps gaps{};                    // what viewers are shown of the missing ones
  std::optional<Application> application{};    // when it is applied to nodes that are there
  std::optional<host::Recording> recording{};  // of the scene, when the import is done
  std::optional<double> marker_size{};  // in millimeters, that fits the markers which it makes
};

// What the user has said that no dialog asks for.
struct ImportManner {
  ReportManner report;
  std::optional<ShownTime> time{};
  host::GapManner gaps = host::GapManner::kHide;
};

// What is imported, and how.
struct ImportOrder {
  const InputFile& file;
  FileKind kind = FileKind::kHtr;
  const ImportChoices& choices;
  const std::vector<orvane::UnknownName>& unknown_names;  // that were to be selected
};

// Tells what is odd in the file of `order`, and what its import into `scene` will make of that. A
// finding that says the same as a refusal is left to that. Throws a Failure when nothing is to be
// imported.
[[nodiscard]] ToldImport TellOfImport(const ImportOrder& order, const host::Scene& scene,
                                      const ImportManner& manner);

}  // namespace cli
