#include "cli/map/map_create.h"

#include <filesystem>
#include <iostream>
#include <vector>

#include "cli/common/failure.h"
#include "cli/common/file_kind.h"
#include "cli/common/input.h"
#include "cli/common/input_files.h"
#include "cli/common/json_members.h"
#include "cli/common/json_writer.h"
#include "cli/common/messages.h"
#include "cli/common/outputs.h"
#include "cli/common/report.h"
#include "cli/common/whole_output.h"
#include "cli/import/inspection.h"
#include "cli/map/mapping_user.h"
#include "cli/map/picks_table.h"
#include "formats/mnm/marker_name_map.h"
#include "inspect/check/findings.h"
#include "platform/interrupt.h"
#include "platform/path_text.h"
#include "platform/scratch_folder.h"

namespace cli {
namespace {

using orvane::CountOf;

constexpr char kMappingName[] = "/mapping.mnm";

// The last of what the plug-in has told, as the reason why `file` came to nothing.
Failure Refused(const std::string& file, const PluginSession& session) {
  const std::vector<std::string> messages = session.Messages();
  return {ExitStatus::kRefused,
          {ComplainAbout(
              file, messages.empty() ? "The plug-in gave up without a message" : messages.back())}};
}

// The cloud that the creator picks from.
void ImportCloud(PluginSession& session, const InputFile& input) {
  if (!session.Import(input.path, ExtensionOf(FileKind::kTrc), {}, false)) {
    throw Refused(input.name, session);
  }
  StopIfInterrupted();
  if (!session.Messages().empty()) throw Refused(input.name, session);
}

std::vector<std::string> NamesIn(host::Scene& scene) {
  std::vector<std::string> names;
  for (const host::Node* node : scene.Root().Children()) names.push_back(node->Name());
  return names;
}

// The plug-in does not notice that a file was cut short.
void RequirePicks(const std::string& made, const std::string& bytes, const PicksTable& picks,
                  const std::string& output) {
  orvane::MarkerNameMap mapping;
  if (!mapping.Load(made)) throw NotReadBackForMemory(output);
  if (bytes.ends_with('\n') && mapping.Count() == picks.Count() && picks.AreIn(mapping)) return;
  throw Failure{ExitStatus::kInputOutput,
                {{output, "The plug-in could not write all of the file", "Is the disk full?"}}};
}

// Tells what is odd in `input`, and returns it. Throws a Failure when its import into `scene` would
// make nothing of it, or far too much, and when a strict user does not take it.
orvane::FileReport TellOfMarkers(const InputFile& input, const host::Scene& scene,
                                 const MapCreateArguments& arguments) {
  ReportManner manner = arguments.report;
  manner.only_warnings = arguments.quiet;
  const Inspection inspection =
      Inspect(input, FileKind::kTrc, {}, scene, "Is \"NumFrames\" right?", !manner.omitted);
  orvane::FileReport report;
  if (!manner.omitted) {
    report = ReportOn(inspection.checked, orvane::Action::kInspect);
    WriteReportFile({report}, manner);
  }
  if (inspection.refusal) {
    const Complaint refusal = WithCode(*inspection.refusal, report, inspection.refused_codes);
    for (const std::string_view code : inspection.refused_codes) report = report.Without(code);
    Tell(report, manner);
    throw Failure{ExitStatus::kRefused, {refusal}};
  }
  Tell(report, manner);
  if (Forbids(manner, report)) throw ForbiddenByStrict(manner, report);
  return report;
}

void PrintJson(const MapCreateArguments& arguments, const std::string& input, std::size_t mapped,
               const orvane::FileReport& report) {
  constexpr int kVersion = 2;
  JsonWriter json(std::cout);
  json.BeginObject();
  json.Key("version");
  json.Integer(kVersion);
  WriteText(json, "file", input);
  WriteText(json, "mapping", arguments.output);
  json.Key("markers_mapped");
  json.Integer(static_cast<std::int64_t>(mapped));
  json.Key("findings");
  WriteFindings(json, report);
  json.EndObject();
}

void Show(const MapCreateArguments& arguments, const std::string& input, std::size_t mapped,
          const orvane::FileReport& report) {
  if (arguments.json) return PrintJson(arguments, input, mapped, report);
  if (arguments.quiet) return;
  std::cout << Printable(arguments.output) << ": " << CountOf(mapped, "marker") << " mapped\n";
  if (arguments.report.omitted) std::cout << "  Report  none: --no-report\n";
}

}  // namespace

ExitStatus CreateMapping(const MapCreateArguments& arguments) {
  platform::CatchInterrupts();
  InputFiles files({arguments.marker_file}, arguments.stream_name);
  const InputFile input = files.Find(arguments.marker_file, FileKind::kTrc);
  RequireNoInput(arguments.output, {input.path, arguments.picks});
  RequireReportApart(arguments.report, {input.path, arguments.picks}, {arguments.output});
  WholeOutput output(arguments.output, arguments.force);
  PluginSession session(arguments.module, SettingsSource::kFresh);
  const orvane::FileReport report = TellOfMarkers(input, session.scene(), arguments);
  ImportCloud(session, input);
  const PicksTable picks(arguments.picks, NamesIn(session.scene()), arguments.sticks);

  const platform::ScratchFolder scratch(output.Folder());
  if (!scratch.Error().empty()) {
    throw Failure{ExitStatus::kInputOutput, {{output.Folder(), scratch.Error(), ""}}};
  }
  const std::string made = scratch.Path() + kMappingName;
  MappingUser(session, picks, arguments.sticks).Create(made);
  StopIfInterrupted();
  if (!std::filesystem::exists(platform::PathOf(made))) throw Refused(arguments.output, session);
  const std::string bytes = ReadBack(arguments.output, [&] {
    std::string written = BytesWritten(made);
    RequirePicks(made, written, picks, arguments.output);
    return written;
  });
  output.Deliver(bytes);
  Show(arguments, input.name, picks.Count(), report);
  return ExitStatus::kDone;
}

}  // namespace cli
