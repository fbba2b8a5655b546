#pragma once

#include <string>

#include "cli/common/file_kind.h"
#include "cli/common/input_files.h"
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
void Compare(const InputFile& file_a, const InputFile& file_b, const CompareManner& manner,
             MotionReport& report);
void Compare(const InputFile& file_a, const InputFile& file_b, const CompareManner& manner,
             MarkerReport& report);

// The kind of both, which are `files`, by their names; of standard input by its content or else by
// the other. Throws a Failure when they are of two kinds.
[[nodiscard]] FileKind KindOfBoth(const std::string& a, const std::string& b, InputFiles& files);

// Compares two of `files`, of one kind, and returns what `use` makes of the report, of that kind.
template <typename Use>
auto CompareAndUse(const std::string& a, const std::string& b, InputFiles& files,
                   const CompareManner& manner, const Use& use) {
  const FileKind kind = KindOfBoth(a, b, files);
  const InputFile file_a = files.Find(a, kind);
  const InputFile file_b = files.Find(b, kind);
  if (kind == FileKind::kTrc) {
    MarkerReport report;
    Compare(file_a, file_b, manner, report);
    return use(report);
  }
  MotionReport report;
  Compare(file_a, file_b, manner, report);
  return use(report);
}

}  // namespace cli
