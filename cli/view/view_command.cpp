#include "cli/view/view_command.h"

#include <CLI/CLI.hpp>
#include <cstdint>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/common/file_kind.h"
#include "cli/common/input.h"
#include "cli/common/input_files.h"
#include "cli/common/messages.h"
#include "cli/common/outputs.h"
#include "cli/common/page_text.h"
#include "cli/common/reading_memory.h"
#include "cli/common/report_flags.h"
#include "cli/common/told_reading.h"
#include "cli/common/whole_output.h"
#include "cli/view/workbench.h"
#include "formats/text/numbers.h"
#include "platform/file_viewer.h"
#include "platform/interrupt.h"
#include "platform/path_text.h"
#include "platform/program.h"

namespace cli {
namespace {

struct ViewArguments {
  std::vector<std::string> inputs;
  std::optional<FileKind> kind;  // nothing: by their names
  std::string stream_name;       // of standard input; empty: its own
  std::string output;            // empty: beside the first take
  bool force = false;
  bool keep_closed = false;
  ReportManner report;
};

std::string AbsolutePath(const std::string& path) {
  return platform::TextOf(std::filesystem::absolute(platform::PathOf(path)).lexically_normal());
}

void TellWhereToOpen(const std::string& page) {
  std::cout << "Open it in any browser: " << Printable(page) << '\n';
}

// Has a person see `page`, or tells where it is.
void ShowPage(const std::string& page, bool keep_closed) {
  if (keep_closed || !platform::HasDesktop()) return TellWhereToOpen(page);
  const std::string error = platform::ShowFile(page);
  if (error.empty()) return;
  Print(Severity::kWarning, {page, "could not be shown: " + error, ""});
  TellWhereToOpen(page);
}

// What is told of a take whose file has been read.
std::string Held(const orvane::HtrDocument& document) {
  return Counted(static_cast<std::int64_t>(document.segments().size()), "segment") + ", " +
         Counted(FramesHeld(document).Count(), "frame");
}
std::string Held(const orvane::TRCDocument& document) {
  return Counted(static_cast<std::int64_t>(document.MarkerCount()), "marker") + ", " +
         Counted(FramesHeld(document).Count(), "frame");
}

// A page that is too large to be sent to someone is one all the same.
void WarnOfSize(const std::string& page, std::size_t bytes) {
  constexpr std::size_t kMegabyte = 1'000'000;
  constexpr std::size_t kMostMegabytes = 25;
  if (bytes <= kMostMegabytes * kMegabyte) return;
  const auto megabytes = static_cast<std::int64_t>((bytes + kMegabyte - 1) / kMegabyte);
  Print(Severity::kWarning,
        {page, "is " + orvane::FormatInt(megabytes) + " MB large; mail takes 25 MB in many places",
         "\"orvane rewrite TAKE -o PART --cut FROM:TO\" makes a take of some of its frames."});
}

class Viewing {
 public:
  explicit Viewing(const ViewArguments& arguments)
      : arguments_(arguments), files_(arguments.inputs, arguments.stream_name) {}

  ExitStatus Run() {
    platform::CatchInterrupts();
    const std::vector<InputFile> takes = FindTakes();
    const std::string path = OutputFor(takes);
    RequirePlaces(takes, path);
    WholeOutput output(path, arguments_.force);
    const std::string workbench = FindWorkbench(platform::ProgramFolder());
    WorkbenchWriter writer(workbench, FileBytes(workbench));
    for (std::size_t at = 0; at < takes.size(); ++at) Embed(takes[at], kinds_[at], writer);
    WriteReportFile(reports_, arguments_.report);
    const std::string page = writer.Finish();
    output.Deliver(page);
    Tell(path, page.size());
    ShowPage(AbsolutePath(path), arguments_.keep_closed);
    return ExitStatus::kDone;
  }

 private:
  std::vector<InputFile> FindTakes() {
    std::vector<InputFile> takes;
    takes.reserve(arguments_.inputs.size());
    kinds_.reserve(arguments_.inputs.size());
    for (const std::string& input : arguments_.inputs) {
      kinds_.push_back(files_.KindOf(input, arguments_.kind));
      takes.push_back(files_.Find(input, kinds_.back()));
    }
    return takes;
  }

  // Beside the first take; what is streamed in lies in no folder of its user's.
  [[nodiscard]] std::string OutputFor(const std::vector<InputFile>& takes) const {
    if (!arguments_.output.empty()) return arguments_.output;
    const InputFile& first = takes.front();
    std::filesystem::path page = platform::PathOf(first.path);
    if (first.path != first.name) page = page.filename();
    return platform::TextOf(page.replace_extension(".html"));
  }

  void RequirePlaces(const std::vector<InputFile>& takes, const std::string& output) const {
    std::vector<std::string> inputs;
    inputs.reserve(takes.size());
    for (const InputFile& take : takes) inputs.push_back(take.path);
    RequireNoInput(output, inputs);
    RequireReportApart(arguments_.report, inputs, {output});
  }

  void Embed(const InputFile& take, FileKind kind, WorkbenchWriter& writer) {
    ExpectReading(take.path);
    ReportManner manner = arguments_.report;
    manner.file.clear();
    const std::string held =
        kind == FileKind::kTrc ? ReadMarkers(take, manner) : ReadMotion(take, manner);
    StopIfInterrupted();
    writer.Add({NameInPage(take, kind), FileBytes(take)});
    StopIfInterrupted();
    told_.push_back(Printable(take.name) + ": " + held);
  }

  std::string ReadMarkers(const InputFile& take, const ReportManner& manner) {
    orvane::TRCDocument document;
    reports_.push_back(ReadAndTell(document, take, manner));
    return Held(document);
  }

  std::string ReadMotion(const InputFile& take, const ReportManner& manner) {
    orvane::HtrDocument document;
    reports_.push_back(ReadAndTell(document, take, Motion::kRead, manner));
    return Held(document);
  }

  // The page knows takes by their names.
  static std::string NameInPage(const InputFile& take, FileKind kind) {
    const std::string name = platform::TextOf(platform::PathOf(take.path).filename());
    return cli::KindOf(name) == kind ? name : name + (kind == FileKind::kTrc ? ".trc" : ".htr");
  }

  void Tell(const std::string& path, std::size_t bytes) const {
    std::cout << "Wrote " << Printable(path) << " ("
              << orvane::FormatInt(static_cast<std::int64_t>(bytes)) << " bytes)\n";
    for (const std::string& take : told_) std::cout << "  " << take << '\n';
    std::cout.flush();
    WarnOfSize(path, bytes);
  }

  const ViewArguments& arguments_;
  InputFiles files_;
  std::vector<FileKind> kinds_;  // of the takes
  std::vector<orvane::FileReport> reports_;
  std::vector<std::string> told_;
};

// The page without takes lies where all may read it: it is shown there, or copied.
ExitStatus ViewNothing(const ViewArguments& arguments) {
  const std::string workbench = FindWorkbench(platform::ProgramFolder());
  if (arguments.output.empty()) {
    ShowPage(AbsolutePath(workbench), arguments.keep_closed);
    return ExitStatus::kDone;
  }
  WholeOutput output(arguments.output, arguments.force);
  output.Deliver(FileBytes(workbench));
  ShowPage(AbsolutePath(arguments.output), arguments.keep_closed);
  return ExitStatus::kDone;
}

}  // namespace

void AddViewCommand(CLI::App& app, Work& work) {
  auto arguments = std::make_shared<ViewArguments>();
  CLI::App* verb = app.add_subcommand("view", "Show takes in a page, which any browser opens");
  verb->add_option("TAKE", arguments->inputs,
                   "HTR and TRC files, or - for standard input; none: the page alone")
      ->type_name("");
  verb->add_option("-o,--output", arguments->output,
                   "The page to write (the first take's name with .html behind it)")
      ->type_name("PAGE");
  verb->add_flag("--no-open", arguments->keep_closed, "Write the page and tell where it is");
  verb->add_flag("--force", arguments->force, "Replace PAGE if it exists");
  AddKindChoice(*verb, arguments->kind);
  AddStreamName(*verb, arguments->stream_name);
  AddTellingFlags(*verb, arguments->report);
  verb->callback([arguments, &work] {
    work = [arguments] {
      return arguments->inputs.empty() ? ViewNothing(*arguments) : Viewing(*arguments).Run();
    };
  });
}

}  // namespace cli
