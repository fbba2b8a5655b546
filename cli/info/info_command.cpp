#include "cli/info/info_command.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>

#include "cli/common/file_kind.h"
#include "cli/common/input.h"
#include "cli/common/told_reading.h"
#include "cli/info/info_report.h"
#include "cli/info/trc_info.h"

namespace cli {
namespace {

using orvane::ListHierarchy;
using orvane::SummarizeMotion;

struct InfoArguments {
  std::string input;
  std::optional<FileKind> kind;  // nothing: by its name
  bool hierarchy_only = false;
  bool json = false;
  bool frames = false;
  ReportManner report;
};

void Read(const std::string& file, const InfoArguments& arguments, InfoReport& report) {
  report.file = file;
  const Motion motion = arguments.hierarchy_only ? Motion::kLeftOut : Motion::kRead;
  report.findings = ReadAndTell(report.document, file, motion, arguments.report);
  report.hierarchy = ListHierarchy(report.document);
  if (motion == Motion::kLeftOut) return;
  report.subject = orvane::MeasureSubject(report.document);
  report.motion = SummarizeMotion(report.document, report.hierarchy);
}

ExitStatus ShowTrcInfo(const InfoArguments& arguments) {
  if (arguments.hierarchy_only) {
    throw Failure{ExitStatus::kWrongUsage, {{"--hierarchy", "markers have no hierarchy", ""}}};
  }
  TrcInfoReport report;
  const std::string file = ReadableFile(arguments.input, FileKind::kTrc);
  RequireReportApart(arguments.report, {file}, {});
  ReadTrcInfo(file, arguments.report, report);
  WriteReportFile({report.findings}, arguments.report);
  if (arguments.json) {
    PrintTrcInfoJson(report, arguments.frames, std::cout);
  } else {
    PrintTrcInfoPage(report, std::cout);
  }
  return ExitStatus::kDone;
}

ExitStatus ShowHtrInfo(const InfoArguments& arguments) {
  InfoReport report;
  const std::string file = ReadableFile(arguments.input, FileKind::kHtr);
  RequireReportApart(arguments.report, {file}, {});
  Read(file, arguments, report);
  WriteReportFile({report.findings}, arguments.report);
  if (arguments.json) {
    PrintInfoJson(report, arguments.frames, std::cout);
  } else {
    PrintInfoPage(report, std::cout);
  }
  return ExitStatus::kDone;
}

ExitStatus ShowInfo(const InfoArguments& arguments) {
  const FileKind kind = arguments.kind.value_or(KindOf(arguments.input));
  return kind == FileKind::kTrc ? ShowTrcInfo(arguments) : ShowHtrInfo(arguments);
}

}  // namespace

void AddInfoCommand(CLI::App& app, Work& work) {
  auto arguments = std::make_shared<InfoArguments>();
  CLI::App* verb = app.add_subcommand("info", "Tell what a motion or marker file holds");
  verb->add_option("FILE", arguments->input, "The HTR or TRC file")->required()->type_name("");
  AddKindChoice(*verb, arguments->kind);
  CLI::Option* hierarchy = verb->add_flag("--hierarchy", arguments->hierarchy_only,
                                          "HTR: read the header and the hierarchy, not the motion");
  AddTellingFlags(*verb, arguments->report);
  hierarchy->excludes(verb->get_option("--report"));
  CLI::Option* json = verb->add_flag("--json", arguments->json, "Write JSON");
  verb->add_flag("--frames", arguments->frames, "With --json: every value of every frame")
      ->needs(json)
      ->excludes(hierarchy);
  verb->callback([arguments, &work] { work = [arguments] { return ShowInfo(*arguments); }; });
}

}  // namespace cli
