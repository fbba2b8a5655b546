#pragma once

#include <cassert>
#include <ostream>
#include <string>

#include "cli/common/json_writer.h"
#include "formats/htr/document.h"
#include "inspect/compare/motion_comparison.h"
#include "inspect/compare/structure_comparison.h"
#include "inspect/report/report.h"

// What `orvane compare` tells of two motion files: as a page for a person, or as JSON for a
// program. docs/command-line.md documents the JSON; its version changes when a field changes its
// meaning or goes.

namespace cli {

struct MotionReport {
  std::string file_a;
  std::string file_b;
  orvane::HtrDocument a;
  orvane::HtrDocument b;
  orvane::FileReport findings_a;
  orvane::FileReport findings_b;
  orvane::Tolerance tolerance;
  orvane::StructureComparison structure;  // of `a` and `b`
  orvane::MotionComparison motion;        // of `structure`

  // Nothing is beyond the tolerance, and the structure is the same.
  [[nodiscard]] bool SaysTheSame() const {
    return !structure.differences.Any() && !motion.overall.first_beyond.has_value();
  }

  // REQUIRES: `pair` is the index of one in `structure`.
  [[nodiscard]] std::string NameOf(std::size_t pair) const {
    assert(pair < structure.pairs.size());
    return structure.hierarchy_a[structure.pairs[pair].in_a].segment->GetName();
  }
  [[nodiscard]] const std::string& FileName(orvane::WhichFile file) const {
    return file == orvane::WhichFile::kA ? file_a : file_b;
  }
};

void PrintComparison(const MotionReport& report, std::ostream& out);
void WriteComparison(JsonWriter& json, const MotionReport& report);

}  // namespace cli
