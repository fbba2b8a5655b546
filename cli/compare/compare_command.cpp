#include "cli/compare/compare_command.h"

#include <CLI/CLI.hpp>
#include <cmath>
#include <iostream>
#include <memory>
#include <utility>
#include <vector>

#include "cli/common/input.h"
#include "cli/common/told_reading.h"
#include "cli/compare/comparison_report.h"
#include "formats/text/numbers.h"

namespace cli {
namespace {

using orvane::CompareMotion;
using orvane::CompareStructure;
using orvane::Tolerance;

struct CompareArguments {
  std::string file_a;
  std::string file_b;
  Tolerance tolerance;
  ReportManner report;
  bool json = false;
};

// Reads `file` into `document` and tells of it. A file that is refused is trouble, not a
// difference.
orvane::FileReport Read(const std::string& file, const ReportManner& manner,
                        orvane::HtrDocument& document,
                        std::vector<orvane::FileReport> reports = {}) {
  try {
    return ReadAndTell(document, file, Motion::kRead, manner, std::move(reports));
  } catch (Failure& failure) {
    failure.status = ExitStatus::kInputOutput;
    throw;
  }
}

ExitStatus Compare(const CompareArguments& arguments) {
  ComparisonReport report;
  report.file_a = ReadableHtrFile(arguments.file_a);
  report.file_b = ReadableHtrFile(arguments.file_b);
  RequireReportApart(arguments.report, {report.file_a, report.file_b}, {});
  report.findings_a = Read(report.file_a, arguments.report, report.a);
  report.findings_b = Read(report.file_b, arguments.report, report.b, {report.findings_a});
  WriteReportFile({report.findings_a, report.findings_b}, arguments.report);
  report.tolerance = arguments.tolerance;
  report.structure = CompareStructure(report.a, report.b);
  report.motion = CompareMotion(report.structure, report.a, report.b, report.tolerance);
  if (arguments.json) {
    PrintComparisonJson(report, std::cout);
  } else {
    PrintComparisonPage(report, std::cout);
  }
  return report.SaysTheSame() ? ExitStatus::kDone : ExitStatus::kDifferent;
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

void AddTolerance(CLI::App& verb, const std::string& flag, double& tolerance,
                  const std::string& help) {
  verb.add_option_function<std::string>(
          flag,
          [&tolerance, flag](const std::string& text) { tolerance = ToleranceFrom(flag, text); },
          help + " (" + orvane::FormatShortest(tolerance) + ")")
      ->type_name("NUMBER");
}

}  // namespace

void AddCompareCommand(CLI::App& app, Work& work) {
  auto arguments = std::make_shared<CompareArguments>();
  CLI::App* verb = app.add_subcommand("compare", "Tell how far two motion files are apart");
  verb->add_option("A", arguments->file_a, "An HTR file")->required()->type_name("");
  verb->add_option("B", arguments->file_b, "Another HTR file")->required()->type_name("");
  AddTolerance(*verb, "--tolerance-mm", arguments->tolerance.mm,
               "How far apart joints may be, in millimetres");
  AddTolerance(*verb, "--tolerance-deg", arguments->tolerance.deg,
               "How far segments may be turned, in degrees");
  AddTellingFlags(*verb, arguments->report);
  verb->add_flag("--json", arguments->json, "Write JSON");
  verb->callback([arguments, &work] { work = [arguments] { return Compare(*arguments); }; });
}

}  // namespace cli
