#pragma once

#include <cstddef>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "cli/common/failure.h"
#include "cli/import/application.h"
#include "cli/import/marker_gaps.h"
#include "host/scene/scene.h"
#include "inspect/report/report.h"

// What came of an import: for a person, and as JSON. docs/command-line.md documents both.

namespace cli {

struct ImportedFile {
  std::string input;
  std::string output;
  bool is_delivered = true;      // not in a dry run
  bool is_plain = false;         // for viewers alone
  std::size_t output_bytes = 0;  // of the scene file, when it is delivered
  std::size_t keys_set = 0;
  bool keeps_range = false;             // the animation range is as before: one frame sets none
  SampleCounts samples{};               // of a marker file, in the frames that got keys
  orvane::ShownGaps gaps{};             // what viewers are shown of the missing ones
  std::optional<double> chosen_size{};  // of markers, in millimeters; nothing when nobody chose
  bool is_checked = true;               // whether anything was looked for in the file
  orvane::FileReport report{};
  std::vector<Complaint> warnings{};         // apart from that
  std::optional<Application> application{};  // when it was applied to nodes that were there
};

// "hidden", "held" or "at the origin".
[[nodiscard]] const char* NameOf(orvane::ShownGaps gaps);

// `scene` is what the import has made.
void PrintImportSummary(const ImportedFile& file, const host::Scene& scene, std::ostream& out);
void PrintImportJson(const ImportedFile& file, const host::Scene& scene, std::ostream& out);

}  // namespace cli
