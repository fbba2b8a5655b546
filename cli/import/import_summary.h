#pragma once

#include <cstddef>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "cli/common/failure.h"
#include "cli/import/application.h"
#include "host/scene/scene.h"
#include "inspect/report/report.h"

// What came of an import: for a person, and as JSON. docs/command-line.md documents both.

namespace cli {

struct ImportedFile {
  std::string input;
  std::string output;
  bool is_delivered = true;      // not in a dry run
  std::size_t output_bytes = 0;  // of the scene file, when it is delivered
  std::size_t keys_set = 0;
  std::optional<double> chosen_size{};  // of markers, in millimeters; nothing when nobody chose
  bool is_checked = true;               // whether anything was looked for in the file
  orvane::FileReport report{};
  std::vector<Complaint> warnings{};         // apart from that
  std::optional<Application> application{};  // when it was applied to nodes that were there
};

// `scene` is what the import has made.
void PrintImportSummary(const ImportedFile& file, const host::Scene& scene, std::ostream& out);
void PrintImportJson(const ImportedFile& file, const host::Scene& scene, std::ostream& out);

}  // namespace cli
