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

orvane::FileReport Read(const InputFile& file, const ReportManner& manner,
                        orvane::HtrDocument& document,
                        std::vector<orvane::FileReport> reports = {}) {
  return ReadOrFail(
      [&] { return ReadAndTell(document, file, Motion::kRead, manner, std::move(reports)); });
}

orvane::FileReport Read(const InputFile& file, const ReportManner& manner,
                        orvane::TRCDocument& document,
                        std::vector<orvane::FileReport> reports = {}) {
  return ReadOrFail([&] { return ReadAndTell(document, file, manner, std::move(reports)); });
}

// Reads both files into `report` and tells of them.
template <typename Report>
void ReadBoth(const InputFile& file_a, const InputFile& file_b, const ReportManner& manner,
              Report& report) {
  report.file_a = file_a.name;
  report.file_b = file_b.name;
  RequireReportApart(manner, {file_a.path, file_b.path}, {});
  report.findings_a = Read(file_a, manner, report.a);
  report.findings_b = Read(file_b, manner, report.b, {report.findings_a});
  WriteReportFile({report.findings_a, report.findings_b}, manner);
}

}  // namespace

void Compare(const InputFile& file_a, const InputFile& file_b, const CompareManner& manner,
             MotionReport& report) {
  ReadBoth(file_a, file_b, manner.report, report);
  report.tolerance = manner.tolerance;
  report.structure = CompareStructure(report.a, report.b);
  report.motion = CompareMotion(report.structure, report.a, report.b, report.tolerance);
}

void Compare(const InputFile& file_a, const InputFile& file_b, const CompareManner& manner,
             MarkerReport& report) {
  ReadBoth(file_a, file_b, manner.report, report);
  report.tolerance_mm = manner.tolerance.mm;
  report.comparison = CompareMarkers(report.a, report.b, report.tolerance_mm);
}

FileKind KindOfBoth(const std::string& a, const std::string& b, InputFiles& files) {
  const std::optional<FileKind> kind_a = files.FindKind(a, std::nullopt);
  const std::optional<FileKind> kind_b = files.FindKind(b, std::nullopt);
  const FileKind kind = kind_a.value_or(kind_b.value_or(FileKind::kHtr));
  if (kind == kind_b.value_or(kind)) return kind;
  throw Failure{ExitStatus::kWrongUsage,
                {{files.NameOf(b), "is of another kind than " + files.NameOf(a),
                  "Motion files are compared with each other, and marker files with each other; "
                  "the name of a marker file ends in .trc."}}};
}

}  // namespace cli
