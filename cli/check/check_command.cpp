#include "cli/check/check_command.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "cli/check/file_checks.h"
#include "cli/check/scene_check.h"
#include "cli/common/check_results.h"
#include "cli/common/choice.h"
#include "cli/common/found_files.h"
#include "cli/common/input_files.h"

namespace cli {
namespace {

struct CheckArguments {
  std::vector<std::string> inputs;
  std::string kind;                    // of all files; empty for what their names say
  std::string stream_name;             // of standard input; empty: its own
  std::vector<std::string> selection;  // in scenes
  bool recursive = false;
  bool verbose = false;
  CheckManner manner;
};

class Checking {
 public:
  explicit Checking(const CheckArguments& arguments)
      : arguments_(arguments),
        found_(Find(arguments)),
        files_(arguments.inputs, arguments.stream_name),
        results_(MannerFor(arguments, found_)) {}

  ExitStatus Run() {
    if (!arguments_.manner.quiet) PrintNotes(found_);
    if (!found_.errors.empty()) results_.Complain({ExitStatus::kInputOutput, found_.errors});
    for (const std::string& file : found_.names) CheckOne(file);
    return results_.Finish();
  }

 private:
  static FoundFiles Find(const CheckArguments& arguments) {
    const bool is_for_export = arguments.manner.action == orvane::Action::kExport;
    const auto kinds = is_for_export ? CheckedKinds::kScenes : CheckedKinds::kFiles;
    return FindFiles(arguments.inputs, SearchFor(kinds, arguments.recursive));
  }

  static CheckManner MannerFor(const CheckArguments& arguments, const FoundFiles& found) {
    CheckManner manner = arguments.manner;
    manner.by_code = found.names.size() > 1 && !arguments.verbose;
    return manner;
  }

  // One file that cannot be read does not keep the others from being checked.
  void CheckOne(const std::string& name) {
    try {
      if (IsForExport()) return results_.Add(CheckSceneForExport(name, arguments_.selection));
      const orvane::CheckedFile checked = CheckFile(name, arguments_.kind, files_);
      RequireAction(checked);
      results_.Add(checked);
    } catch (const Failure& failure) {
      results_.Add(failure);
    }
  }

  bool IsForExport() const { return arguments_.manner.action == orvane::Action::kExport; }

  // Throws a Failure when what is asked about cannot be done with such a file.
  void RequireAction(const orvane::CheckedFile& checked) const {
    const auto& action = arguments_.manner.action;
    if (!action || Takes(*action, checked.kind)) return;
    throw Failure{ExitStatus::kWrongUsage,
                  {{checked.file,
                    "\"" + std::string(NameOf(*action)) + "\" takes no " +
                        std::string(checked.kind) + " files",
                    "\"orvane check\" without --for tells what is odd in the file alone."}}};
  }

  const CheckArguments& arguments_;
  const FoundFiles found_;
  InputFiles files_;
  CheckResults results_;
};

void RequireUse(const CheckArguments& arguments) {
  const bool is_for_export = arguments.manner.action == orvane::Action::kExport;
  const auto complain = [](const std::string& flag, const std::string& text) {
    throw Failure{ExitStatus::kWrongUsage, {{flag, text, ""}}};
  };
  if (!is_for_export && !arguments.selection.empty()) complain("--select", "needs --for export");
  if (is_for_export && !arguments.kind.empty()) {
    complain("--as", "is for files that are read, and --for export takes scenes");
  }
}

ExitStatus Check(const CheckArguments& arguments) {
  RequireUse(arguments);
  return Checking(arguments).Run();
}

}  // namespace

void AddCheckCommand(CLI::App& app, Work& work) {
  auto arguments = std::make_shared<CheckArguments>();
  CLI::App* verb = app.add_subcommand("check", "Name everything that is odd in files");
  verb->add_option(
          "FILE", arguments->inputs,
          "HTR, TRC and MNM files, and folders of them, or - for standard input; with --for "
          "export scene files")
      ->required()
      ->type_name("");
  AddChoice(*verb, "--as", {"htr", "trc", "mnm"}, "What the files are (what their names say)",
            [arguments](const std::string& kind) { arguments->kind = kind; });
  AddStreamName(*verb, arguments->stream_name);
  AddChoice(
      *verb, "--for", {"import", "apply", "convert", "export", "rewrite"},
      "Tell what the findings mean to that (what is odd in the file alone)",
      [arguments](const std::string& name) { arguments->manner.action = orvane::ActionOf(name); });
  verb->add_option("--select", arguments->selection,
                   "With --for export: the node of each scene to export the skeleton of (what "
                   "is selected in it)")
      ->expected(1)
      ->type_name("NAME");
  AddRecursive(*verb, arguments->recursive);
  CLI::Option* verbose =
      verb->add_flag("--verbose", arguments->verbose,
                     "Tell of several files with all places, too (one line a code)");
  AddCheckManner(*verb, arguments->manner);
  verb->add_flag("--quiet", arguments->manner.quiet,
                 "Write nothing of what is found: the status says it")
      ->excludes(verbose)
      ->excludes(verb->get_option("--json"));
  verb->callback([arguments, &work] { work = [arguments] { return Check(*arguments); }; });
}

}  // namespace cli
