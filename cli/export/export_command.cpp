#include "cli/export/export_command.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <memory>
#include <optional>
#include <string>

#include "cli/common/advice.h"
#include "cli/common/choice.h"
#include "cli/common/failure.h"
#include "cli/common/known_messages.h"
#include "cli/common/messages.h"
#include "cli/common/outputs.h"
#include "cli/common/plugin_session.h"
#include "cli/common/reading_memory.h"
#include "cli/common/report_flags.h"
#include "cli/common/scene_input.h"
#include "cli/export/export_htr_flags.h"
#include "cli/export/export_range.h"
#include "cli/export/export_summary.h"
#include "cli/export/exported_motion.h"
#include "cli/export/motion_output.h"
#include "cli/export/told_export.h"
#include "cli/export/told_skins.h"
#include "host/animation/animation_state.h"
#include "inspect/summary/frame_rate.h"
#include "platform/interrupt.h"
#include "platform/terminal.h"

namespace cli {
namespace {

using host::gltf::SkinReading;

struct ExportArguments {
  std::string input;
  std::string output;
  std::string module = DefaultModulePath();
  std::vector<std::string> selection;
  std::vector<ControlWish> wishes;
  host::gltf::SkinOptions skin;
  SettingsSource settings = SettingsSource::kFresh;
  ReportManner report;
  bool json = false;
  bool quiet = false;
  bool force = false;
};

void AddMessages(const std::string& scene_file, const PluginSession& session,
                 std::vector<Complaint>& complaints) {
  for (const std::string& text : session.Messages()) {
    complaints.push_back({scene_file, text, AdviceForExport(text)});
  }
}

// Throws a Failure when something is wished for that a scene of ours has settled.
void RequireSkin(const SkinReading& reading, const ExportArguments& arguments) {
  const std::string flag = arguments.skin.rate ? "--rate" : "--clip";
  if (reading.is_skin || (!arguments.skin.rate && arguments.skin.clip.empty())) return;
  throw Failure{ExitStatus::kWrongUsage,
                {{flag,
                  "is for files of other programs: " + arguments.input +
                      " keeps a scene, whose keys are in frames",
                  ""}}};
}

Failure NotCarriedOut(const std::string& scene_file, std::vector<Complaint> complaints) {
  if (complaints.empty()) {
    complaints.push_back({scene_file, "The plug-in gave up without a message", ""});
  }
  return {ExitStatus::kRefused, complaints};
}

// Tells what the motion file will not hold of the scene. Returns it. Throws a Failure when that is
// a reason against the export.
orvane::FileReport TellOfScene(const host::Scene& scene, const ExportChoices& choices,
                               const SkinReading& reading,
                               const std::vector<orvane::UnknownName>& unknown,
                               const ExportArguments& arguments) {
  ReportManner manner = arguments.report;
  manner.only_warnings = arguments.quiet;
  if (manner.omitted) {
    RequireSensibleRange(arguments.input, scene, choices);
    return {};
  }
  orvane::FileReport report = ReportOnExport(arguments.input, scene, choices, unknown);
  report.Take(ReportOnSkins(arguments.input, scene, reading));
  WriteReportFile({report}, manner);
  // Of these the plug-in says so itself.
  report = report.Without("export-root-missing").Without("export-root-effector");
  Tell(report, manner);
  if (!unknown.empty()) throw RefusedForErrors(manner, report, {});
  if (Forbids(manner, report)) throw ForbiddenByStrict(manner, report);
  return report;
}

// The plug-in tells of names that it refuses in its own words, which are no reason against the
// export when the finding is none.
void TellAllowed(const ReportManner& manner, std::vector<Complaint>& complaints) {
  const auto& allowed = manner.allowed;
  if (std::find(allowed.begin(), allowed.end(), "export-name-refused") == allowed.end()) return;
  std::erase_if(complaints, [](const Complaint& complaint) {
    if (Recognize(complaint.text) != KnownMessage::kIdenticalNames) return false;
    Print(Severity::kWarning, complaint);
    return true;
  });
}

void Show(const ExportedFile& file, const ExportArguments& arguments) {
  if (arguments.json) return PrintExportJson(file, std::cout);
  if (!arguments.quiet) PrintExportSummary(file, std::cout);
}

ExitStatus Export(const ExportArguments& arguments) {
  platform::CatchInterrupts();
  RequireNoInput(MotionFilePath(arguments.output), {arguments.input});
  RequireReportApart(arguments.report, {arguments.input}, {MotionFilePath(arguments.output)});
  MotionOutput output(arguments.output, arguments.force);
  PluginSession session(arguments.module, arguments.settings);
  const host::Scene& scene = session.scene();
  ExpectReading(arguments.input);
  const SkinReading reading = ReadSceneOrSkins(arguments.input, arguments.skin, session.scene());
  RequireSkin(reading, arguments);
  const SelectionMade selection = Select(session.scene(), arguments.selection);
  std::vector<Complaint> complaints = selection.complaints;
  const std::vector<Complaint> unknown = ComplainAbout(selection.unknown);
  if (arguments.report.omitted) complaints.insert(complaints.end(), unknown.begin(), unknown.end());
  const ExportChoices choices = ExportChoicesOf(arguments.wishes, session.settings());
  ExportedFile file{arguments.input, output.Path(), {}, !arguments.report.omitted};
  file.report = TellOfScene(scene, choices, reading, selection.unknown, arguments);
  StopIfInterrupted();
  const std::string place = output.MakeRoom();
  const bool show_progress = !arguments.quiet && platform::ErrorIsTerminal();
  const bool carried_out = session.ExportHtr(place, arguments.wishes, show_progress);
  StopIfInterrupted();
  AddMessages(arguments.input, session, complaints);
  if (!carried_out) throw NotCarriedOut(arguments.input, std::move(complaints));
  file.warnings = complaints;
  TellAllowed(arguments.report, complaints);
  Warn(std::move(complaints), arguments.report.strict);
  file.motion = CheckExport(place, output.Path(), scene);
  output.Deliver();
  Show(file, arguments);
  return ExitStatus::kDone;
}

void AddFileArguments(CLI::App& verb, ExportArguments& arguments) {
  verb.add_option(
          "SCENE", arguments.input,
          "The scene file, which orvane has written: .glb or .gltf; or one of another program, for "
          "its skeletons")
      ->required()
      ->type_name("");
  verb.add_option("-o,--output", arguments.output, "The HTR file to write, whose name ends in .htr")
      ->required()
      ->check(
          [](const std::string& path) {
            return IsMotionFileName(path) ? "" : path + " does not end in .htr";
          },
          "")
      ->type_name("FILE");
  verb.add_flag("--force", arguments.force, "Replace the HTR file if it exists");
}

// Frames per second, such as 59.94; nothing when `text` is no such number.
std::optional<host::Rate> RateIn(const std::string& text) {
  const std::optional<orvane::FrameRate> rate = orvane::ParseFrameRate(text);
  const bool is_number = text.find_first_not_of("0123456789.") == std::string::npos;
  if (!rate || !is_number) return std::nullopt;
  const double frames =
      static_cast<double>(rate->numerator) / static_cast<double>(rate->denominator);
  if (frames < host::kMinimumFrameRate || frames > host::kMaximumFrameRate) return std::nullopt;
  return host::Rate{rate->numerator, rate->denominator};
}

void AddSkinFlags(CLI::App& verb, ExportArguments& arguments) {
  verb.add_option_function<std::string>(
          "--rate", [&arguments](const std::string& text) { arguments.skin.rate = RateIn(text); },
          "Of a file of another program: take so many frames a second (what its keys tell)")
      ->check(
          [](const std::string& text) {
            return RateIn(text) ? "" : text + " is no number from 1 to 4800";
          },
          "")
      ->type_name("NUMBER");
  verb.add_option("--clip", arguments.skin.clip,
                  "Of a file of another program: take the animation of that name (the first one)")
      ->type_name("NAME");
}

void AddHostFlags(CLI::App& verb, ExportArguments& arguments) {
  verb.add_option("--select", arguments.selection,
                  "Export the skeleton of the node of that name (what is selected in the scene)")
      ->expected(1)
      ->type_name("NAME");
  verb.add_option("--module", arguments.module, "The plug-in to load (the one beside orvane)")
      ->type_name("PATH");
}

void AddRunFlags(CLI::App& verb, ExportArguments& arguments) {
  AddChoice(verb, "--settings", {"fresh", "user"},
            "Start from the documented defaults, or from what the user chose last (fresh)",
            [&arguments](const std::string& choice) {
              arguments.settings =
                  choice == "user" ? SettingsSource::kUser : SettingsSource::kFresh;
            });
  AddReportFlags(verb, arguments.report);
  verb.add_flag("--json", arguments.json, "Write JSON");
  verb.add_flag("--quiet", arguments.quiet,
                "No summary, no progress and no notes; warnings and errors are still told");
}

}  // namespace

void AddExportCommand(CLI::App& app, Work& work) {
  auto arguments = std::make_shared<ExportArguments>();
  CLI::App* verb = app.add_subcommand("export", "Export a skeleton of a scene as a motion file");
  AddFileArguments(*verb, *arguments);
  AddExportHtrFlags(*verb, arguments->wishes);
  AddSkinFlags(*verb, *arguments);
  AddHostFlags(*verb, *arguments);
  AddRunFlags(*verb, *arguments);
  verb->callback([arguments, &work] { work = [arguments] { return Export(*arguments); }; });
}

}  // namespace cli
