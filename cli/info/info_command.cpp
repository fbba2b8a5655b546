#include "cli/info/info_command.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <memory>

#include "cli/common/cut_frames.h"
#include "cli/common/file_kind.h"
#include "cli/common/found_files.h"
#include "cli/common/input.h"
#include "cli/common/input_files.h"
#include "cli/common/json_writer.h"
#include "cli/common/messages.h"
#include "cli/common/reading_memory.h"
#include "cli/common/told_reading.h"
#include "cli/info/info_report.h"
#include "cli/info/info_table.h"
#include "cli/info/trc_info.h"

namespace cli {
namespace {

using orvane::ListHierarchy;
using orvane::SummarizeMotion;

struct InfoArguments {
  std::vector<std::string> inputs;
  std::optional<FileKind> kind;  // nothing: by their names
  std::string stream_name;       // of standard input; empty: its own
  bool recursive = false;
  bool hierarchy_only = false;
  bool json = false;
  bool frames = false;
  std::optional<orvane::FrameSpan> cut;  // the only frames to show; nothing: all
  ReportManner report;
};

void ReadInfo(const InputFile& file, const InfoArguments& arguments, const ReportManner& manner,
              InfoReport& report) {
  report.file = file.name;
  ExpectReading(file.path);
  const Motion motion = arguments.hierarchy_only ? Motion::kLeftOut : Motion::kRead;
  report.findings = ReadAndTell(report.document, file, motion, manner, {}, arguments.cut);
  report.hierarchy = ListHierarchy(report.document);
  if (motion == Motion::kLeftOut) return;
  report.motion = SummarizeMotion(report.document, report.hierarchy);
}

// Reads the file that the user means by `name` and has `use` take the report on it, of either kind.
template <typename Use>
void ReadAndUse(const std::string& name, InputFiles& files, const InfoArguments& arguments,
                const ReportManner& manner, const Use& use) {
  const FileKind kind = files.KindOf(name, arguments.kind);
  if (kind == FileKind::kTrc && arguments.hierarchy_only) {
    throw Failure{ExitStatus::kWrongUsage, {{"--hierarchy", "markers have no hierarchy", ""}}};
  }
  const InputFile file = files.Find(name, kind);
  RequireReportApart(manner, {file.path}, {});
  if (kind == FileKind::kTrc) {
    TrcInfoReport report;
    ReadTrcInfo(file, manner, arguments.cut, report);
    return use(report);
  }
  InfoReport report;
  ReadInfo(file, arguments, manner, report);
  use(report);
}

ExitStatus ShowOne(const InfoArguments& arguments) {
  InputFiles files(arguments.inputs, arguments.stream_name);
  ReadAndUse(arguments.inputs.front(), files, arguments, arguments.report, [&](const auto& report) {
    WriteReportFile({report.findings}, arguments.report);
    if (!arguments.json) return PrintInfoPage(report, std::cout);
    JsonWriter json(std::cout);
    WriteInfo(json, report, arguments.frames);
  });
  return ExitStatus::kDone;
}

class ShowingMany {
 public:
  explicit ShowingMany(const InfoArguments& arguments)
      : arguments_(arguments),
        files_(arguments.inputs, arguments.stream_name),
        manner_(arguments.report),
        json_(std::cout) {
    manner_.file.clear();
    manner_.gathered = &reports_;
  }

  ExitStatus Run() {
    const FoundFiles found = FindFiles(arguments_.inputs, Search());
    RequireReportApart(arguments_.report, FilesMeantBy(found.names), {});
    PrintNotes(found);
    if (!found.errors.empty()) failures_.push_back({ExitStatus::kInputOutput, found.errors});
    if (arguments_.json) BeginInfos(json_);
    for (const std::string& name : found.names) Show(name);
    if (arguments_.json) EndInfos(json_);
    table_.Print(std::cout);
    WriteReportFile(reports_, arguments_.report);
    return Complain();
  }

 private:
  FileSearch Search() const {
    std::vector<std::string_view> extensions = {".htr"};
    if (!arguments_.hierarchy_only) extensions.push_back(".trc");
    return {extensions, "show", "shown", arguments_.recursive};
  }

  // Their names with and without what the readers append.
  std::vector<std::string> FilesMeantBy(const std::vector<std::string>& names) const {
    std::vector<std::string> files = names;
    for (const std::string& name : names) {
      if (!StreamOf(name)) files.push_back(FileMeantBy(name, KindByName(name)));
    }
    return files;
  }

  FileKind KindByName(const std::string& name) const {
    return arguments_.kind.value_or(KindOf(name));
  }

  void Show(const std::string& name) {
    try {
      ReadAndUse(name, files_, arguments_, manner_, [this](const auto& report) {
        if (!arguments_.json) return table_.Add(report);
        WriteInfo(json_, report, arguments_.frames);
      });
    } catch (const Failure& failure) {
      failures_.push_back(failure);
      const std::string told = files_.NameOf(name);
      if (!arguments_.json) table_.Add(told, KindByName(told), failure.status);
    }
  }

  // What is odd in all files, and which could not be shown. Returns the status of the worst.
  ExitStatus Complain() const {
    std::cout.flush();
    TellAll(reports_, arguments_.report);
    ExitStatus status = ExitStatus::kDone;
    for (const Failure& failure : failures_) {
      for (const Complaint& complaint : failure.complaints) Print(Severity::kError, complaint);
      status = std::max(status, failure.status);
    }
    return status;
  }

  const InfoArguments& arguments_;
  InputFiles files_;
  ReportManner manner_;  // of one file among them
  JsonWriter json_;
  InfoTable table_;
  std::vector<orvane::FileReport> reports_;
  std::vector<Failure> failures_;
};

ExitStatus ShowInfo(const InfoArguments& arguments) {
  const bool is_one = arguments.inputs.size() == 1 && !IsFolder(arguments.inputs.front());
  return is_one ? ShowOne(arguments) : ShowingMany(arguments).Run();
}

}  // namespace

void AddInfoCommand(CLI::App& app, Work& work) {
  auto arguments = std::make_shared<InfoArguments>();
  CLI::App* verb = app.add_subcommand("info", "Tell what motion and marker files hold");
  verb->add_option("FILE", arguments->inputs,
                   "HTR and TRC files, and folders of them, or - for standard input")
      ->required()
      ->type_name("");
  AddKindChoice(*verb, arguments->kind);
  AddStreamName(*verb, arguments->stream_name);
  AddRecursive(*verb, arguments->recursive);
  CLI::Option* hierarchy = verb->add_flag("--hierarchy", arguments->hierarchy_only,
                                          "HTR: read the header and the hierarchy, not the motion");
  AddCutFlag(*verb, arguments->cut)->excludes(hierarchy);
  AddTellingFlags(*verb, arguments->report);
  hierarchy->excludes(verb->get_option("--report"));
  CLI::Option* json = verb->add_flag("--json", arguments->json, "Write JSON");
  verb->add_flag("--frames", arguments->frames, "With --json: every value of every frame")
      ->needs(json)
      ->excludes(hierarchy);
  verb->callback([arguments, &work] { work = [arguments] { return ShowInfo(*arguments); }; });
}

}  // namespace cli
