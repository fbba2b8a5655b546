#include "cli/map/map_show.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>

#include "cli/common/choice.h"
#include "cli/common/input.h"
#include "cli/common/input_files.h"
#include "cli/common/report_flags.h"
#include "cli/common/taken_names.h"
#include "cli/common/told_reading.h"
#include "cli/map/role_page.h"
#include "inspect/check/mnm_check.h"
#include "inspect/summary/trc_summary.h"

namespace cli {
namespace {

using orvane::FileReport;

struct ShowArguments {
  std::string mapping;
  std::string capture;      // empty for none
  std::string stream_name;  // of standard input; empty: its own
  orvane::NameMatching names = orvane::NameMatching::kExact;
  ReportManner report;
  bool json = false;
};

// What is odd in the mapping. Throws a Failure when it is none.
FileReport TellOfMapping(const ShowArguments& arguments, const std::string& bytes) {
  const FileReport report =
      ReportOn(orvane::CheckMapping(arguments.mapping, bytes), orvane::Action::kInspect);
  const bool is_mapping = report.Count(orvane::FindingSeverity::kError) == 0;
  if (is_mapping && arguments.report.omitted) return {};
  Tell(report, arguments.report);
  if (is_mapping) return report;
  WriteReportFile({report}, arguments.report);
  throw Failure{};  // that has been said
}

// Finds the markers of the capture `document`, known as `file`, that the roles are of.
void Compare(const orvane::TRCDocument& document, const std::string& file,
             orvane::NameMatching names, RoleReport& report) {
  std::vector<std::string> markers;
  for (const orvane::TRCMarker& marker : document.markers()) markers.push_back(marker.Name());
  std::vector<std::string> mapped;
  for (const orvane::MappingRole& role : report.roles) mapped.push_back(role.marker);
  report.match = MatchNames(mapped, markers, names);
  if (const auto ambiguity = FindAmbiguity(file, report.match)) {
    throw Failure{ExitStatus::kRefused, {*ambiguity}};
  }
  const orvane::TrcSummary summary = SummarizeTrc(document);
  for (std::size_t index = 0; index < markers.size(); ++index) {
    report.present.emplace(
        report.match.NameInMapping(markers[index]),
        PresentMarker{markers[index], Coverage(summary.markers[index], summary.frames)});
  }
}

ExitStatus Show(const ShowArguments& arguments) {
  RequireNoStandardInput(arguments.mapping, "A mapping");
  RoleReport report;
  report.mapping = arguments.mapping;
  const std::string bytes = FileBytes(arguments.mapping);
  std::vector<std::string> inputs = {arguments.mapping};
  InputFiles files({arguments.capture}, arguments.stream_name);
  InputFile capture;
  if (!arguments.capture.empty()) {
    capture = files.Find(arguments.capture, FileKind::kTrc);
    report.capture = capture.name;
    inputs.push_back(capture.path);
  }
  RequireReportApart(arguments.report, inputs, {});
  report.roles = orvane::RolesIn(bytes);
  report.reports = {TellOfMapping(arguments, bytes)};
  if (!report.capture.empty()) {
    orvane::TRCDocument document;
    report.reports.push_back(ReadAndTell(document, capture, arguments.report, report.reports));
    Compare(document, report.capture, arguments.names, report);
    TellOfTaken(report.capture, report.match);
  }
  if (arguments.report.omitted) report.reports.clear();
  WriteReportFile(report.reports, arguments.report);
  arguments.json ? PrintRoleJson(report, std::cout) : PrintRolePage(report, std::cout);
  return ExitStatus::kDone;
}

}  // namespace

void AddMapShow(CLI::App& map, Work& work) {
  auto arguments = std::make_shared<ShowArguments>();
  CLI::App* verb =
      map.add_subcommand("show", "Show a mapping by standard markers, and what of it a file has");
  verb->add_option("MAPPING", arguments->mapping, "The MNM file")->required()->type_name("");
  CLI::Option* file =
      verb->add_option("FILE", arguments->capture,
                       "A TRC file whose markers are to be mapped, or - for standard "
                       "input")
          ->type_name("");
  AddStreamName(*verb, arguments->stream_name);
  AddNamesFlag(*verb, arguments->names)->needs(file);
  AddTellingFlags(*verb, arguments->report);
  verb->add_flag("--json", arguments->json, "Write JSON");
  verb->callback([arguments, &work] { work = [arguments] { return Show(*arguments); }; });
}

}  // namespace cli
