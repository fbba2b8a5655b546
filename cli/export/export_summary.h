#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "cli/common/failure.h"
#include "cli/export/exported_motion.h"
#include "inspect/report/report.h"

// What came of an export: for a person, and as JSON. docs/command-line.md documents both.

namespace cli {

struct ExportedFile {
  std::string input;
  std::string output;
  ExportedMotion motion;
  bool is_checked = true;  // whether anything was looked for in the scene
  orvane::FileReport report{};
  std::vector<Complaint> warnings{};  // apart from that
};

void PrintExportSummary(const ExportedFile& file, std::ostream& out);
void PrintExportJson(const ExportedFile& file, std::ostream& out);

}  // namespace cli
