#pragma once

#include <string>

#include "cli/common/file_kind.h"
#include "cli/common/report_flags.h"
#include "cli/compare/marker_report.h"
#include "cli/compare/motion_report.h"

// The comparison of two files: reads them, tells of them as asked, and compares what they hold.

namespace cli {

struct CompareManner {
  orvane::Tolerance tolerance;
  ReportManner report;
};

// Throws a Failure when a file cannot be read, is refused or holds nothing: trouble, not a
// difference.
void Compare(const std::string& file_a, const std::string& file_b, const CompareManner& manner,
             MotionReport& report);
void Compare(const std::string& file_a, const std::string& file_b, const CompareManner& manner,
             MarkerReport& report);

// The kind of both files by their names. Throws a Failure when these are of two kinds.
[[nodiscard]] FileKind KindOfBoth(const std::string& file_a, const std::string& file_b);

// Compares two files of one kind and returns what `use` makes of the report, of that kind.
template <typename Use>
auto CompareAndUse(const std::string& file_a, const std::string& file_b,
                   const CompareManner& manner, const Use& use) {
  if (KindOfBoth(file_a, file_b) == FileKind::kTrc) {
    MarkerReport report;
    Compare(file_a, file_b, manner, report);
    return use(report);
  }
  MotionReport report;
  Compare(file_a, file_b, manner, report);
  return use(report);
}

}  // namespace cli
