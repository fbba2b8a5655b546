#pragma once

#include <ostream>
#include <string>

#include "cli/common/json_writer.h"
#include "formats/trc/document.h"
#include "inspect/compare/marker_comparison.h"
#include "inspect/report/report.h"

// What `orvane compare` tells of two marker files: as a page for a person, or as JSON for a
// program. docs/command-line.md documents the JSON; its version changes when a field changes its
// meaning or goes.

namespace cli {

struct MarkerReport {
  std::string file_a;
  std::string file_b;
  orvane::TRCDocument a;
  orvane::TRCDocument b;
  orvane::FileReport findings_a;
  orvane::FileReport findings_b;
  double tolerance_mm = 0.0;
  orvane::MarkerComparison comparison;  // of `a` and `b`

  // Nothing is beyond the tolerance, and both hold the same markers and frames.
  [[nodiscard]] bool SaysTheSame() const {
    return comparison.HoldTheSame() && !comparison.overall.first_beyond.has_value();
  }
};

void PrintComparison(const MarkerReport& report, std::ostream& out);
void WriteComparison(JsonWriter& json, const MarkerReport& report);

}  // namespace cli
