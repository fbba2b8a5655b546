#include "cli/check/check_command.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "cli/check/file_checks.h"
#include "cli/common/check_results.h"
#include "cli/common/choice.h"

namespace cli {
namespace {

struct CheckArguments {
  std::vector<std::string> inputs;
  std::string kind;  // of all files; empty for what their names say
  CheckManner manner;
};

class Checking {
 public:
  explicit Checking(const CheckArguments& arguments)
      : arguments_(arguments), results_(arguments.manner) {}

  ExitStatus Run() {
    for (const std::string& input : arguments_.inputs) CheckAll(input);
    return results_.Finish();
  }

 private:
  void CheckAll(const std::string& input) {
    try {
      for (const std::string& file : FilesToCheck(input)) CheckOne(file);
    } catch (const Failure& failure) {
      results_.Add(failure);
    }
  }

  // One file that cannot be read does not keep the others from being checked.
  void CheckOne(const std::string& name) {
    try {
      const orvane::CheckedFile checked = CheckFile(name, arguments_.kind);
      RequireAction(checked);
      results_.Add(checked);
    } catch (const Failure& failure) {
      results_.Add(failure);
    }
  }

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
  CheckResults results_;
};

}  // namespace

void AddCheckCommand(CLI::App& app, Work& work) {
  auto arguments = std::make_shared<CheckArguments>();
  CLI::App* verb = app.add_subcommand("check", "Name everything that is odd in files");
  verb->add_option("FILE", arguments->inputs, "HTR, TRC and MNM files, and folders of them")
      ->required()
      ->type_name("");
  AddChoice(*verb, "--as", {"htr", "trc", "mnm"}, "What the files are (what their names say)",
            [arguments](const std::string& kind) { arguments->kind = kind; });
  AddChoice(
      *verb, "--for", {"import", "apply", "convert"},
      "Tell what the findings mean to that (what is odd in the file alone)",
      [arguments](const std::string& name) { arguments->manner.action = orvane::ActionOf(name); });
  AddCheckManner(*verb, arguments->manner);
  verb->callback([arguments, &work] { work = [arguments] { return Checking(*arguments).Run(); }; });
}

}  // namespace cli
