#include "cli/map/map_suggest.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <memory>
#include <optional>

#include "cli/common/choice.h"
#include "cli/common/input.h"
#include "cli/common/input_files.h"
#include "cli/common/outputs.h"
#include "cli/common/page_text.h"
#include "cli/common/report_flags.h"
#include "cli/common/told_reading.h"
#include "cli/common/whole_output.h"
#include "cli/map/suggestion_page.h"
#include "formats/mnm/marker_name_map.h"
#include "platform/interrupt.h"
#include "platform/scratch_folder.h"

namespace cli {
namespace {

struct SuggestArguments {
  std::string marker_file;
  std::string stream_name;  // of standard input; empty: its own
  std::string output;       // empty: nothing is written
  std::string subject;      // the only one looked at; empty for all
  bool is_by_geometry = false;
  ReportManner report;
  bool json = false;
  bool quiet = false;
};

std::vector<std::string> NamesOf(const orvane::TRCDocument& document) {
  std::vector<std::string> names;
  for (const orvane::TRCMarker& marker : document.markers()) names.push_back(marker.Name());
  return names;
}

constexpr const char* kMapCreate =
    "\"orvane map create\" makes a mapping of what you know: which marker sits where.";

// What would help where names say nothing.
std::string AdviceFor(const SuggestionReport& report) {
  if (!report.ambiguous.empty() && report.subjects.size() > 1) {
    return "--subject NAME looks at one of its subjects alone.";
  }
  return std::string(
             "--by-geometry goes by where the markers of a body that walks sit and move. ") +
         kMapCreate;
}

void LookAtNames(SuggestionReport& report, const std::string& subject) {
  SuggestByNames(report, subject);
  if (!report.suggested.empty()) return;
  const auto& known = report.subjects;
  if (!subject.empty() && std::find(known.begin(), known.end(), subject) == known.end()) {
    throw Failure{
        ExitStatus::kRefused,
        {{report.file, "No marker is of the subject \"" + subject + "\"",
          known.empty() ? "Its markers are of none." : "There is " + FewOf(known) + "."}}};
  }
  throw Failure{
      ExitStatus::kRefused,
      {{report.file, "No name of its markers says what place of the body it is of for sure",
        AdviceFor(report)}}};
}

void LookAtPlaces(SuggestionReport& report, const orvane::TRCDocument& document) {
  const std::string problem = SuggestByGeometry(report, document);
  if (problem.empty()) return;
  throw Failure{
      ExitStatus::kRefused,
      {{report.file, problem,
        std::string("A capture says most in which one body with markers from head to foot "
                    "walks forward over the floor, two steps or more. ") +
            kMapCreate}}};
}

std::string MappingBytes(const SuggestionReport& report, const std::string& folder) {
  orvane::MarkerNameMap mapping;
  for (const SuggestedRow& row : report.suggested) {
    mapping.Add(row.standard, report.markers[row.marker], 0);
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
  InputFiles files({arguments.marker_file}, arguments.stream_name);
  const InputFile input = files.Find(arguments.marker_file, FileKind::kTrc);
  report.file = input.name;
  report.output = arguments.output;
  RequireReportApart(arguments.report, {input.path}, {report.output});
  std::optional<WholeOutput> output;
  if (!report.output.empty()) {
    RequireNoInput(report.output, {input.path});
    output.emplace(report.output, false, "It is kept; give -o another name.");
  }
  const ReportManner manner = ReportMannerOf(arguments);
  orvane::TRCDocument document;
  report.findings = ReadAndTell(document, input, manner);
  WriteReportFile({report.findings}, manner);
  if (Forbids(manner, report.findings)) throw ForbiddenByStrict(manner, report.findings);
  report.markers = NamesOf(document);
  if (arguments.is_by_geometry) {
    LookAtPlaces(report, document);
  } else {
    LookAtNames(report, arguments.subject);
  }
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
  CLI::App* verb = map.add_subcommand(
      "suggest", "Suggest a mapping by the names of the markers, or by where they sit");
  verb->add_option("FILE", arguments->marker_file, "The TRC file, or - for standard input")
      ->required()
      ->type_name("");
  AddStreamName(*verb, arguments->stream_name);
  RequireName(verb->add_option("-o,--output", arguments->output,
                               "The mapping file to write; one that exists is never replaced"))
      ->type_name("MAPPING");
  CLI::Option* by_geometry =
      verb->add_flag("--by-geometry", arguments->is_by_geometry,
                     "Go by where the markers of a walking body sit and move, not by their names");
  RequireName(verb->add_option("--subject", arguments->subject,
                               "Look at the markers whose names begin with NAME and a colon alone"))
      ->type_name("NAME")
      ->excludes(by_geometry);
  AddReportFlags(*verb, arguments->report);
  verb->add_flag("--json", arguments->json, "Write JSON");
  verb->add_flag("--quiet", arguments->quiet, "No page, and no notes; warnings are still told");
  verb->callback([arguments, &work] { work = [arguments] { return Suggest(*arguments); }; });
}

}  // namespace cli
