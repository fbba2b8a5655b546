#include "cli/map/map_suggest.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>
#include <optional>

#include "cli/common/choice.h"
#include "cli/common/input.h"
#include "cli/common/outputs.h"
#include "cli/common/report_flags.h"
#include "cli/common/told_reading.h"
#include "cli/map/mapping_output.h"
#include "cli/map/suggestion_page.h"
#include "formats/mnm/marker_name_map.h"
#include "platform/interrupt.h"
#include "platform/scratch_folder.h"

namespace cli {
namespace {

struct SuggestArguments {
  std::string marker_file;
  std::string output;   // empty: nothing is written
  std::string subject;  // the only one looked at; empty for all
  ReportManner report;
  bool json = false;
  bool quiet = false;
};

std::vector<std::string> NamesOf(const orvane::TRCDocument& document) {
  std::vector<std::string> names;
  for (const orvane::TRCMarker& marker : document.markers()) names.push_back(marker.Name());
  return names;
}

// What would help where names say nothing.
std::string AdviceFor(const SuggestionReport& report) {
  if (!report.suggestion.ambiguous.empty() && report.suggestion.subjects.size() > 1) {
    return "--subject NAME looks at one of its subjects alone.";
  }
  return "\"orvane map create\" makes a mapping of what you know: which marker sits where.";
}

void RequireAny(const SuggestionReport& report) {
  if (!report.suggestion.sure.empty()) return;
  throw Failure{
      ExitStatus::kRefused,
      {{report.file, "No name of its markers says what place of the body it is of for sure",
        AdviceFor(report)}}};
}

std::string MappingBytes(const SuggestionReport& report, const std::string& folder) {
  orvane::MarkerNameMap mapping;
  for (const orvane::SuggestedMarker& sure : report.suggestion.sure) {
    mapping.Add(sure.standard, report.markers[sure.marker], 0);
  }
  const platform::ScratchFolder scratch(folder);
  if (!scratch.Error().empty()) {
    throw Failure{ExitStatus::kInputOutput, {{folder, scratch.Error(), ""}}};
  }
  const std::string made = scratch.Path() + "/mapping.mnm";
  if (!mapping.Save(made)) {
    throw Failure{ExitStatus::kInputOutput, {{report.output, "could not be written", ""}}};
  }
  return ReadBack(report.output, [&made] { return BytesWritten(made); });
}

ReportManner ReportMannerOf(const SuggestArguments& arguments) {
  ReportManner manner = arguments.report;
  manner.only_warnings = arguments.quiet;
  return manner;
}

ExitStatus Suggest(const SuggestArguments& arguments) {
  platform::CatchInterrupts();
  SuggestionReport report;
  report.file = ReadableFile(arguments.marker_file, FileKind::kTrc);
  report.output = arguments.output;
  RequireReportApart(arguments.report, {report.file}, {report.output});
  std::optional<MappingOutput> output;
  if (!report.output.empty()) {
    RequireNoInput(report.output, {report.file});
    output.emplace(report.output, false);
  }
  const ReportManner manner = ReportMannerOf(arguments);
  orvane::TRCDocument document;
  report.findings = ReadAndTell(document, report.file, FileBytes(report.file), manner);
  WriteReportFile({report.findings}, manner);
  if (Forbids(manner, report.findings)) throw ForbiddenByStrict(manner, report.findings);
  report.markers = NamesOf(document);
  report.suggestion = orvane::SuggestByNames(report.markers, arguments.subject);
  RequireAny(report);
  if (output) output->Deliver(MappingBytes(report, output->Folder()));
  if (arguments.json) {
    PrintSuggestionJson(report, std::cout);
  } else if (!arguments.quiet) {
    PrintSuggestionPage(report, std::cout);
  }
  return ExitStatus::kDone;
}

}  // namespace

void AddMapSuggest(CLI::App& map, Work& work) {
  auto arguments = std::make_shared<SuggestArguments>();
  CLI::App* verb = map.add_subcommand("suggest", "Suggest a mapping by the names of the markers");
  verb->add_option("FILE", arguments->marker_file, "The TRC file")->required()->type_name("");
  RequireName(verb->add_option("-o,--output", arguments->output,
                               "The mapping file to write; one that exists is never replaced"))
      ->type_name("MAPPING");
  RequireName(verb->add_option("--subject", arguments->subject,
                               "Look at the markers whose names begin with NAME and a colon alone"))
      ->type_name("NAME");
  AddReportFlags(*verb, arguments->report);
  verb->add_flag("--json", arguments->json, "Write JSON");
  verb->add_flag("--quiet", arguments->quiet, "No summary; warnings are still told");
  verb->callback([arguments, &work] { work = [arguments] { return Suggest(*arguments); }; });
}

}  // namespace cli
