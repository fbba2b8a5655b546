#include "cli/compare/comparison.h"

#include <utility>
#include <vector>

#include "cli/common/failure.h"
#include "cli/common/input.h"
#include "cli/common/told_reading.h"

namespace cli {
namespace {

// Does the work of `read`. A file that is refused is trouble, not a difference.
template <typename Read>
orvane::FileReport ReadOrFail(const Read& read) {
  try {
    return read();
  } catch (Failure& failure) {
    failure.status = ExitStatus::kInputOutput;
    throw;
  }
}

orvane::FileReport Read(const std::string& file, const ReportManner& manner,
                        orvane::HtrDocument& document,
                        std::vector<orvane::FileReport> reports = {}) {
  return ReadOrFail(
      [&] { return ReadAndTell(document, file, Motion::kRead, manner, std::move(reports)); });
}

orvane::FileReport Read(const std::string& file, const ReportManner& manner,
                        orvane::TRCDocument& document,
                        std::vector<orvane::FileReport> reports = {}) {
  return ReadOrFail(
      [&] { return ReadAndTell(document, file, FileBytes(file), manner, std::move(reports)); });
}

// Finds both files, reads them into `report` and tells of them.
template <typename Report>
void ReadBoth(const std::string& file_a, const std::string& file_b, FileKind kind,
              const ReportManner& manner, Report& report) {
  report.file_a = ReadableFile(file_a, kind);
  report.file_b = ReadableFile(file_b, kind);
  RequireReportApart(manner, {report.file_a, report.file_b}, {});
  report.findings_a = Read(report.file_a, manner, report.a);
  report.findings_b = Read(report.file_b, manner, report.b, {report.findings_a});
  WriteReportFile({report.findings_a, report.findings_b}, manner);
}

}  // namespace

void Compare(const std::string& file_a, const std::string& file_b, const CompareManner& manner,
             MotionReport& report) {
  ReadBoth(file_a, file_b, FileKind::kHtr, manner.report, report);
  report.tolerance = manner.tolerance;
  report.structure = CompareStructure(report.a, report.b);
  report.motion = CompareMotion(report.structure, report.a, report.b, report.tolerance);
}

void Compare(const std::string& file_a, const std::string& file_b, const CompareManner& manner,
             MarkerReport& report) {
  ReadBoth(file_a, file_b, FileKind::kTrc, manner.report, report);
  report.tolerance_mm = manner.tolerance.mm;
  report.comparison = CompareMarkers(report.a, report.b, report.tolerance_mm);
}

FileKind KindOfBoth(const std::string& file_a, const std::string& file_b) {
  const FileKind kind = KindOf(file_a);
  if (kind == KindOf(file_b)) return kind;
  throw Failure{ExitStatus::kWrongUsage,
                {{file_b, "is of another kind than " + file_a,
                  "Motion files are compared with each other, and marker files with each other; "
                  "the name of a marker file ends in .trc."}}};
}

}  // namespace cli
