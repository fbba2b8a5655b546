#include "cli/compare/compare_command.h"

#include <CLI/CLI.hpp>
#include <cmath>
#include <iostream>
#include <memory>
#include <utility>
#include <vector>

#include "cli/common/file_kind.h"
#include "cli/common/input.h"
#include "cli/common/told_reading.h"
#include "cli/compare/marker_report.h"
#include "cli/compare/motion_report.h"
#include "formats/text/numbers.h"

namespace cli {
namespace {

using orvane::CompareMarkers;
using orvane::CompareMotion;
using orvane::CompareStructure;
using orvane::Tolerance;

struct CompareArguments {
  std::string file_a;
  std::string file_b;
  Tolerance tolerance;
  bool limits_turns = false;  // the user has said how far segments may be turned
  ReportManner report;
  bool json = false;
};

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
void ReadBoth(const CompareArguments& arguments, FileKind kind, Report& report) {
  report.file_a = ReadableFile(arguments.file_a, kind);
  report.file_b = ReadableFile(arguments.file_b, kind);
  RequireReportApart(arguments.report, {report.file_a, report.file_b}, {});
  report.findings_a = Read(report.file_a, arguments.report, report.a);
  report.findings_b = Read(report.file_b, arguments.report, report.b, {report.findings_a});
  WriteReportFile({report.findings_a, report.findings_b}, arguments.report);
}

ExitStatus CompareMotionFiles(const CompareArguments& arguments) {
  MotionReport report;
  ReadBoth(arguments, FileKind::kHtr, report);
  report.tolerance = arguments.tolerance;
  report.structure = CompareStructure(report.a, report.b);
  report.motion = CompareMotion(report.structure, report.a, report.b, report.tolerance);
  arguments.json ? PrintMotionJson(report, std::cout) : PrintMotionPage(report, std::cout);
  return report.SaysTheSame() ? ExitStatus::kDone : ExitStatus::kDifferent;
}

ExitStatus CompareMarkerFiles(const CompareArguments& arguments) {
  if (arguments.limits_turns) {
    throw Failure{ExitStatus::kWrongUsage,
                  {{"--tolerance-deg", "markers are not turned", "--tolerance-mm is for them."}}};
  }
  MarkerReport report;
  ReadBoth(arguments, FileKind::kTrc, report);
  report.tolerance_mm = arguments.tolerance.mm;
  report.comparison = CompareMarkers(report.a, report.b, report.tolerance_mm);
  arguments.json ? PrintMarkerJson(report, std::cout) : PrintMarkerPage(report, std::cout);
  return report.SaysTheSame() ? ExitStatus::kDone : ExitStatus::kDifferent;
}

ExitStatus Compare(const CompareArguments& arguments) {
  const FileKind kind = KindOf(arguments.file_a);
  if (kind != KindOf(arguments.file_b)) {
    throw Failure{ExitStatus::kWrongUsage,
                  {{arguments.file_b, "is of another kind than " + arguments.file_a,
                    "Motion files are compared with each other, and marker files with each other; "
                    "the name of a marker file ends in .trc."}}};
  }
  return kind == FileKind::kTrc ? CompareMarkerFiles(arguments) : CompareMotionFiles(arguments);
}

double ToleranceFrom(const std::string& flag, const std::string& text) {
  const char* const end = text.data() + text.size();
  const orvane::LeadingDouble number = orvane::ReadDouble(text.data(), end);
  const bool is_number = !text.empty() && number.end == end;
  if (!is_number || !std::isfinite(number.value) || number.value < 0.0) {
    throw CLI::ValidationError(flag,
                               "a number that is not negative is expected, not \"" + text + "\"");
  }
  return number.value;
}

CLI::Option* AddTolerance(CLI::App& verb, const std::string& flag, double& tolerance,
                          const std::string& help) {
  return verb
      .add_option_function<std::string>(
          flag,
          [&tolerance, flag](const std::string& text) { tolerance = ToleranceFrom(flag, text); },
          help + " (" + orvane::FormatShortest(tolerance) + ")")
      ->type_name("NUMBER");
}

}  // namespace

void AddCompareCommand(CLI::App& app, Work& work) {
  auto arguments = std::make_shared<CompareArguments>();
  CLI::App* verb =
      app.add_subcommand("compare", "Tell how far two motion or two marker files are apart");
  verb->add_option("A", arguments->file_a, "An HTR or TRC file")->required()->type_name("");
  verb->add_option("B", arguments->file_b, "Another one of the same kind")
      ->required()
      ->type_name("");
  AddTolerance(*verb, "--tolerance-mm", arguments->tolerance.mm,
               "How far apart joints or markers may be, in millimeters");
  const CLI::Option* turns = AddTolerance(*verb, "--tolerance-deg", arguments->tolerance.deg,
                                          "HTR: how far segments may be turned, in degrees");
  AddTellingFlags(*verb, arguments->report);
  verb->add_flag("--json", arguments->json, "Write JSON");
  verb->callback([arguments, turns, &work] {
    arguments->limits_turns = turns->count() > 0;
    work = [arguments] { return Compare(*arguments); };
  });
}

}  // namespace cli
