#include "cli/export/export_command.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>

#include "cli/common/advice.h"
#include "cli/common/choice.h"
#include "cli/common/failure.h"
#include "cli/common/messages.h"
#include "cli/common/outputs.h"
#include "cli/common/plugin_session.h"
#include "cli/common/scene_input.h"
#include "cli/export/export_htr_flags.h"
#include "cli/export/export_range.h"
#include "cli/export/exported_motion.h"
#include "cli/export/motion_output.h"
#include "formats/text/numbers.h"
#include "platform/interrupt.h"
#include "platform/terminal.h"

namespace cli {
namespace {

struct ExportArguments {
  std::string input;
  std::string output;
  std::string module = DefaultModulePath();
  std::vector<std::string> selection;
  std::vector<ControlWish> wishes;
  SettingsSource settings = SettingsSource::kFresh;
  bool strict = false;
  bool quiet = false;
  bool force = false;
};

void AddMessages(const std::string& scene_file, const PluginSession& session,
                 std::vector<Complaint>& complaints) {
  for (const std::string& text : session.Messages()) {
    complaints.push_back({scene_file, text, AdviceForExport(text)});
  }
}

Failure NotCarriedOut(const std::string& scene_file, std::vector<Complaint> complaints) {
  if (complaints.empty()) {
    complaints.push_back({scene_file, "The plug-in gave up without a message", ""});
  }
  return {ExitStatus::kRefused, complaints};
}

void PrintSummary(const ExportArguments& arguments, const MotionOutput& output,
                  const ExportedMotion& motion) {
  using orvane::FormatInt;
  std::cout << "Exported " << Printable(arguments.input) << '\n'
            << "  Segments  " << FormatInt(motion.segments) << '\n'
            << "  Frames    " << FormatInt(motion.first_frame) << " to "
            << FormatInt(motion.first_frame + motion.frames - 1) << " at "
            << FormatInt(motion.frame_rate) << " frames per second\n"
            << "  File      " << Printable(output.Path()) << " ("
            << FormatInt(static_cast<std::int64_t>(motion.bytes)) << " bytes)\n";
}

ExitStatus Export(const ExportArguments& arguments) {
  platform::CatchInterrupts();
  RequireNoInput(MotionFilePath(arguments.output), {arguments.input});
  MotionOutput output(arguments.output, arguments.force);
  PluginSession session(arguments.module, arguments.settings);
  ReadSceneFile(arguments.input, session.scene());
  std::vector<Complaint> complaints = Select(session.scene(), arguments.selection);
  RequireSensibleRange(arguments.input, session.scene(),
                       ExportChoicesOf(arguments.wishes, session.settings()));
  StopIfInterrupted();
  const std::string place = output.MakeRoom();
  const bool show_progress = !arguments.quiet && platform::ErrorIsTerminal();
  const bool carried_out = session.ExportHtr(place, arguments.wishes, show_progress);
  StopIfInterrupted();
  AddMessages(arguments.input, session, complaints);
  if (!carried_out) throw NotCarriedOut(arguments.input, std::move(complaints));
  Warn(std::move(complaints), arguments.strict);
  const ExportedMotion motion = CheckExport(place, output.Path(), session.scene());
  output.Deliver();
  if (!arguments.quiet) PrintSummary(arguments, output, motion);
  return ExitStatus::kDone;
}

void AddFileArguments(CLI::App& verb, ExportArguments& arguments) {
  verb.add_option("SCENE", arguments.input, "The scene file: .glb or .gltf")
      ->required()
      ->type_name("");
  verb.add_option("-o,--output", arguments.output, "The HTR file to write")
      ->required()
      ->check(
          [](const std::string& path) {
            return IsMotionFileName(path) ? "" : path + " does not end in .htr";
          },
          "")
      ->type_name("FILE");
  verb.add_flag("--force", arguments.force, "Replace the HTR file if it exists");
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
  verb.add_flag("--strict", arguments.strict, "Take every warning as a refusal");
  verb.add_flag("--quiet", arguments.quiet, "No summary and no progress; warnings are still told");
}

}  // namespace

void AddExportCommand(CLI::App& app, Work& work) {
  auto arguments = std::make_shared<ExportArguments>();
  CLI::App* verb = app.add_subcommand("export", "Export a skeleton of a scene as a motion file");
  AddFileArguments(*verb, *arguments);
  AddExportHtrFlags(*verb, arguments->wishes);
  AddHostFlags(*verb, *arguments);
  AddRunFlags(*verb, *arguments);
  verb->callback([arguments, &work] { work = [arguments] { return Export(*arguments); }; });
}

}  // namespace cli
