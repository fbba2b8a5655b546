#include "cli/import/import_command.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <iterator>
#include <memory>
#include <optional>
#include <utility>

#include "cli/common/advice.h"
#include "cli/common/choice.h"
#include "cli/common/cut_frames.h"
#include "cli/common/failure.h"
#include "cli/common/file_kind.h"
#include "cli/common/input.h"
#include "cli/common/input_files.h"
#include "cli/common/known_messages.h"
#include "cli/common/messages.h"
#include "cli/common/outputs.h"
#include "cli/common/plugin_session.h"
#include "cli/common/reading_memory.h"
#include "cli/common/report_flags.h"
#include "cli/common/scene_input.h"
#include "cli/common/scratch_copy.h"
#include "cli/import/hidden_numbers.h"
#include "cli/import/import_flags.h"
#include "cli/import/import_summary.h"
#include "cli/import/key_counts.h"
#include "cli/import/length_unit.h"
#include "cli/import/measured_nodes.h"
#include "cli/import/scene_output.h"
#include "cli/import/size_wish.h"
#include "cli/import/told_import.h"
#include "formats/text/numbers.h"
#include "platform/interrupt.h"
#include "platform/terminal.h"

namespace cli {
namespace {

struct ImportArguments {
  std::string input;
  std::optional<FileKind> kind;  // nothing: by its name
  std::string stream_name;       // of standard input; empty: its own
  std::string output;
  std::string into;  // the scene file to start from; empty for a new scene
  std::string module = DefaultModulePath();
  std::optional<ShownTime> time;         // nothing: as the scene has it
  std::optional<host::GapManner> gaps;   // nothing: they are hidden
  bool plain = false;                    // a scene for viewers alone
  std::optional<orvane::FrameSpan> cut;  // nothing: all frames
  bool z_up = false;                     // the heights in the file lie along Z
  std::vector<std::string> selection;
  std::vector<ControlWish> wishes;
  double millimeters_per_unit = 1.0;
  SettingsSource settings = SettingsSource::kFresh;
  ReportManner report;
  bool quiet = false;
  bool json = false;
  bool dry_run = false;
  bool force = false;
};

// The command line's defaults are the documented ones of the dialog but for this one, which is for
// scenes that have no keys yet.
std::vector<ControlWish> AllWishes(const ImportArguments& arguments) {
  std::vector<ControlWish> wishes = arguments.wishes;
  const bool is_new = arguments.into.empty();
  if (is_new && arguments.settings == SettingsSource::kFresh && !MentionFrameRate(wishes)) {
    wishes.push_back(FrameRateFromFile());
  }
  return wishes;
}

void PrepareScene(const ImportArguments& arguments, host::Scene& scene) {
  if (!arguments.into.empty()) return ReadSceneFile(arguments.into, scene);
  scene.SetMillimetersPerUnit(arguments.millimeters_per_unit);
}

void Append(const std::vector<Complaint>& more, std::vector<Complaint>& complaints) {
  complaints.insert(complaints.end(), more.begin(), more.end());
}

// Whether the dialog has found fault with its frame numbers.
bool IsAboutRange(const std::string& text) {
  const std::optional<KnownMessage> known = Recognize(text);
  return known == KnownMessage::kStartFrameTooLow || known == KnownMessage::kEndFrameTooHigh ||
         known == KnownMessage::kFramesOutOfOrder;
}

// Frame numbers that nobody has typed come from the header.
std::string AdviceFor(const std::string& text, const ImportChoices& choices,
                      const HiddenNumbers& hidden) {
  if (IsAboutRange(text) && !choices.range) {
    return "Does \"NumFrames\" in the header announce any frames?";
  }
  const std::string advice = hidden.AdviceFor(text);
  return advice.empty() ? cli::AdviceFor(text) : advice;
}

// When the import has made `range` another one, that ends before it begins.
void AddReversedRange(const std::string& file, const Interval& range,
                      const host::AnimationState& animation, std::vector<Complaint>& complaints) {
  const Interval now = animation.Range();
  if (now == range || now.End() >= now.Start()) return;
  const int ticks = animation.TicksPerFrame();
  complaints.push_back({file,
                        "The animation range begins in frame " +
                            orvane::FormatInt(now.Start() / ticks) + " and ends in frame " +
                            orvane::FormatInt(now.End() / ticks),
                        "--offset moves its end alone."});
}

// Behind the errors of `report` the dialog finds fault with what follows from them.
Failure NotCarriedOut(const ReportManner& manner, const orvane::FileReport& report,
                      std::vector<Complaint> complaints) {
  std::erase_if(complaints, [](const Complaint& each) { return IsAboutRange(each.text); });
  if (complaints.empty()) return RefusedForErrors(manner, report, {});
  return {ExitStatus::kRefused, std::move(complaints)};
}

Failure NotCarriedOut(const InputFile& file, FileKind kind, std::vector<Complaint> complaints) {
  const Complaint flaw = FindFlaw(file, kind);
  if (!flaw.text.empty()) complaints.push_back(flaw);
  if (complaints.empty()) {
    complaints.push_back(ComplainAbout(file.name, "The plug-in gave up without a message"));
  }
  return {ExitStatus::kRefused, complaints};
}

host::GapManner GapsOf(const ImportArguments& arguments) {
  return arguments.gaps.value_or(host::GapManner::kHide);
}

ImportManner MannerOf(const ImportArguments& arguments) {
  ImportManner manner{arguments.report, arguments.time, GapsOf(arguments)};
  manner.report.only_warnings = arguments.quiet;
  manner.report.dry_run = arguments.dry_run;
  return manner;
}

// The plug-in warns of a scale factor in its own words, which are no reason against the import when
// the finding is none.
void TellAllowed(const ReportManner& manner, std::vector<Complaint>& complaints) {
  const auto& allowed = manner.allowed;
  if (std::find(allowed.begin(), allowed.end(), "htr-scale-factor") == allowed.end()) return;
  std::erase_if(complaints, [](const Complaint& complaint) {
    if (Recognize(complaint.text) != KnownMessage::kScaleFactorIgnored) return false;
    Print(Severity::kWarning, complaint);
    return true;
  });
}

// One file on its way into a scene.
class Importing {
 public:
  Importing(InputFile input, FileKind kind, const ImportArguments& arguments)
      : input_(std::move(input)),
        kind_(kind),
        arguments_(arguments),
        output_(arguments.output, arguments.force, arguments.plain),
        session_(arguments.module, arguments.settings),
        wishes_(AllWishes(arguments)) {}

  ExitStatus Run() {
    ExpectReading(input_.path);
    host::Scene& scene = session_.scene();
    PrepareScene(arguments_, scene);
    const SelectionMade selection = Select(scene, arguments_.selection);
    Append(selection.complaints, complaints_);
    if (arguments_.report.omitted) Append(ComplainAbout(selection.unknown), complaints_);
    ImportChoices choices = ChoicesOf(wishes_, kind_, session_.settings());
    choices.turned_up = arguments_.z_up;
    choices.cut = arguments_.cut;
    const SizeUnits units{scene.MillimetersPerUnit(), choices.scale};
    ConvertSize(wishes_, kind_, units);
    const ImportManner manner = MannerOf(arguments_);
    ToldImport told = TellOfImport({input_, kind_, choices, selection.unknown}, scene, manner);
    Append(told.complaints, complaints_);
    StopIfInterrupted();
    SetKeys keys(scene);
    const MeasuredNodes measured(scene);
    if (told.application)
      keys.Expect(told.application->KeyedNodes(choices), kind_ == FileKind::kHtr);
    const std::optional<double> chosen_size = ChooseSize(told, units);
    ImportOrRefuse(choices, manner.report, told);
    scene.SetRecording(std::move(told.recording));
    if (told.samples) {
      measured.Tell(GapsOf(arguments_), *told.samples, told.keyed, choices, told.application);
    }
    const std::size_t keys_set = keys.Count(choices, told.keyed);
    ImportedFile file = Describe(std::move(told));
    file.keys_set = keys_set;
    file.chosen_size = chosen_size;
    file.warnings = complaints_;
    TellAllowed(arguments_.report, complaints_);
    Warn(std::move(complaints_), arguments_.report.strict);
    if (file.is_delivered) file.output_bytes = output_.Deliver(scene, input_.name);
    Show(file);
    return ExitStatus::kDone;
  }

 private:
  // The command line's own default for one control, in the place of the dialog's; in millimeters.
  std::optional<double> ChooseSize(const ToldImport& told, const SizeUnits& units) {
    const bool is_left = arguments_.settings == SettingsSource::kFresh && !MentionSize(wishes_);
    if (!is_left || !told.marker_size) return std::nullopt;
    wishes_.push_back(SizeOf(*told.marker_size, units));
    return told.marker_size;
  }

  // Throws a Failure when the plug-in does not do it, and for errors that it does not see: it takes
  // some files that nothing good comes of.
  void ImportOrRefuse(const ImportChoices& choices, const ReportManner& manner,
                      const ToldImport& told) {
    const bool carried_out = LetPluginImport(choices, told.changed);
    if (!carried_out && told.has_errors) {
      throw NotCarriedOut(manner, told.report, std::move(complaints_));
    }
    if (!carried_out) throw NotCarriedOut(input_, kind_, std::move(complaints_));
    if (!told.has_errors) return;
    throw RefusedForErrors(manner, told.report, std::move(complaints_),
                           told.can_be_saved ? "--no-report imports it anyway." : "");
  }

  ImportedFile Describe(ToldImport told) const {
    ImportedFile file{input_.name, arguments_.output, !arguments_.dry_run};
    file.is_checked = !arguments_.report.omitted;
    file.is_plain = arguments_.plain;
    file.keeps_range = told.keeps_range;
    if (told.samples) file.samples = CountSamples(*told.samples, told.keyed);
    file.gaps = told.gaps;
    file.report = std::move(told.report);
    file.application = std::move(told.application);
    return file;
  }

  // Of the file, or of these bytes in its place when there are any. Returns whether it was carried
  // out to its end.
  bool LetPluginImport(const ImportChoices& choices, const std::string& bytes) {
    std::optional<ScratchCopy> copy;
    if (!bytes.empty()) copy.emplace(output_.Folder(), input_, bytes);
    const host::AnimationState& animation = session_.scene().Animation();
    const Interval range = animation.Range();
    const bool show_progress = !arguments_.quiet && platform::ErrorIsTerminal();
    // Without a word from the user, the host goes by the name of a file.
    const bool is_told = arguments_.kind || StreamOf(arguments_.input);
    const std::string extension = is_told ? ExtensionOf(kind_) : "";
    const bool carried_out =
        session_.Import(copy ? copy->Path() : input_.path, extension, wishes_, show_progress);
    StopIfInterrupted();
    const HiddenNumbers hidden(wishes_, kind_, session_.settings());
    for (const std::string& text : session_.Messages()) {
      complaints_.push_back({input_.name, text, AdviceFor(text, choices, hidden)});
    }
    if (carried_out) AddReversedRange(input_.name, range, animation, complaints_);
    return carried_out;
  }

  void Show(const ImportedFile& file) {
    if (arguments_.json) return PrintImportJson(file, session_.scene(), std::cout);
    if (!arguments_.quiet) PrintImportSummary(file, session_.scene(), std::cout);
  }

  const InputFile input_;
  const FileKind kind_;
  const ImportArguments& arguments_;
  SceneOutput output_;
  PluginSession session_;
  Wishes wishes_;
  std::vector<Complaint> complaints_;
};

// The dialog stores what was chosen in it.
void RequireNothingStored(const ImportArguments& arguments) {
  if (!arguments.dry_run || arguments.settings == SettingsSource::kFresh) return;
  throw Failure{ExitStatus::kWrongUsage,
                {{"--dry-run", "the dialog would store what --settings user lets it store", ""}}};
}

// What is asked of markers alone.
void RequireForMarkers(const ImportArguments& arguments, FileKind kind) {
  if (kind == FileKind::kTrc) return;
  if (arguments.gaps) {
    throw Failure{ExitStatus::kWrongUsage, {{"--gaps", "a motion file has no gaps", ""}}};
  }
  if (arguments.z_up) {
    throw Failure{ExitStatus::kWrongUsage,
                  {{"--up z",
                    "only marker files are turned: the bones of a motion file have axes "
                    "of their own, which would turn with it",
                    "Turn the skeleton in the scene."}}};
  }
}

ExitStatus Import(const ImportArguments& arguments) {
  platform::CatchInterrupts();
  RequireNothingStored(arguments);
  InputFiles files({arguments.input}, arguments.stream_name);
  const FileKind kind = files.KindOf(arguments.input, arguments.kind);
  RequireForMarkers(arguments, kind);
  const InputFile input = files.Find(arguments.input, kind);
  RequireNoInput(arguments.output, {input.path});
  std::vector<std::string> inputs = {input.path};
  if (!arguments.into.empty()) inputs.push_back(arguments.into);
  RequireReportApart(arguments.report, inputs, {arguments.output});
  return Importing(input, kind, arguments).Run();
}

void AddFileArguments(CLI::App& verb, ImportArguments& arguments) {
  verb.add_option("FILE", arguments.input, "The HTR or TRC file, or - for standard input")
      ->required()
      ->type_name("");
  AddKindChoice(verb, arguments.kind);
  AddStreamName(verb, arguments.stream_name);
  verb.add_option("-o,--output", arguments.output,
                  "The scene to write: binary to a name in .glb, text to one in .gltf")
      ->required()
      ->check(
          [](const std::string& path) {
            return IsSceneFileName(path) ? "" : path + " does not end in .glb or .gltf";
          },
          "")
      ->type_name("SCENE");
  verb.add_flag("--force", arguments.force, "Replace the scene file if it exists");
}

void AddHostFlags(CLI::App& verb, ImportArguments& arguments) {
  CLI::Option* into =
      RequireName(verb.add_option("--into", arguments.into,
                                  "Start from the scene in this file (a new scene)"))
          ->type_name("SCENE");
  verb.add_option("--select", arguments.selection,
                  "Select the node of that name before the import; may be repeated")
      ->expected(1)
      ->allow_extra_args(false)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
      ->type_name("NAME");
  AddChoice(verb, "--system-unit", LengthUnitNames(), "The length that 1 means in the scene (mm)",
            [&arguments](const std::string& unit) {
              arguments.millimeters_per_unit = FindLengthUnit(unit)->millimeters;
            })
      ->excludes(into);
  verb.add_option("--module", arguments.module, "The plug-in to load (the one beside orvane)")
      ->type_name("PATH");
}

host::GapManner GapMannerNamed(const std::string& name) {
  if (name == "hold") return host::GapManner::kHold;
  return name == "origin" ? host::GapManner::kOrigin : host::GapManner::kHide;
}

void AddViewFlags(CLI::App& verb, ImportArguments& arguments) {
  AddCutFlag(verb, arguments.cut)->excludes(verb.get_option("--range"));
  AddChoice(verb, "--up", {"y", "z"}, "TRC: the axis that the heights in the file lie along (y)",
            [&arguments](const std::string& axis) { arguments.z_up = axis == "z"; });
  AddChoice(verb, "--gaps", {"hide", "hold", "origin"},
            "TRC: hide markers from viewers where they were not measured, hold them at their last "
            "places, or show them at the origin (hide)",
            [&arguments](const std::string& choice) { arguments.gaps = GapMannerNamed(choice); });
  AddChoice(verb, "--time", {"file", "host"},
            "Show viewers the rate of the file, or the host's time (file in a new scene)",
            [&arguments](const std::string& choice) {
              arguments.time = choice == "file" ? ShownTime::kFile : ShownTime::kHost;
            });
}

void AddRunFlags(CLI::App& verb, ImportArguments& arguments) {
  verb.add_flag("--plain", arguments.plain,
                "Write a scene for viewers alone, which nothing can be added to or exported from");
  AddChoice(verb, "--settings", {"fresh", "user"},
            "Start from the documented defaults, or from what the user chose last (fresh)",
            [&arguments](const std::string& choice) {
              arguments.settings =
                  choice == "user" ? SettingsSource::kUser : SettingsSource::kFresh;
            });
  verb.add_flag(
      "--dry-run", arguments.dry_run,
      "Do all of it but write the scene, and show what would be made; not with --settings user");
  AddReportFlags(verb, arguments.report);
  verb.add_flag("--json", arguments.json, "Write JSON");
  verb.add_flag("--quiet", arguments.quiet,
                "No summary, no progress and no notes; warnings and errors are still told");
}

}  // namespace

void AddImportCommand(CLI::App& app, Work& work) {
  auto arguments = std::make_shared<ImportArguments>();
  CLI::App* verb = app.add_subcommand("import", "Import a motion or marker file into a scene");
  AddFileArguments(*verb, *arguments);
  AddImportFlags(*verb, arguments->wishes);
  AddHostFlags(*verb, *arguments);
  AddViewFlags(*verb, *arguments);
  AddRunFlags(*verb, *arguments);
  verb->callback([arguments, &work] { work = [arguments] { return Import(*arguments); }; });
}

}  // namespace cli
