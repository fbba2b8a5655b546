#include "cli/check_command.h"

#include <algorithm>
#include <iostream>
#include <memory>

#include "cli/check_report.h"
#include "cli/choice.h"
#include "cli/file_checks.h"
#include "cli/messages.h"

namespace cli {
namespace {

struct CheckArguments {
  std::vector<std::string> inputs;
  FindingSeverity tolerated = FindingSeverity::kNote;
  bool json = false;
};

FindingSeverity SeverityOf(const std::string& name) {
  if (name == "error") return FindingSeverity::kError;
  return name == "warning" ? FindingSeverity::kWarning : FindingSeverity::kNote;
}

bool IsTolerable(const FindingList& findings, FindingSeverity tolerated) {
  const auto& totals = findings.Totals();
  return std::all_of(totals.begin(), totals.end(),
                     [tolerated](const auto& total) { return total.second.severity <= tolerated; });
}

class Checking {
 public:
  explicit Checking(const CheckArguments& arguments) : arguments_(arguments) {}

  ExitStatus Run() {
    for (const std::string& input : arguments_.inputs) CheckAll(input);
    if (arguments_.json) PrintCheckJson(files_, std::cout);
    return status_;
  }

 private:
  void CheckAll(const std::string& input) {
    try {
      for (const std::string& file : FilesToCheck(input)) CheckOne(file);
    } catch (const Failure& failure) {
      Tell(failure);
    }
  }

  // One file that cannot be read does not keep the others from being checked.
  void CheckOne(const std::string& name) {
    try {
      CheckedFile file = CheckFile(name);
      if (!IsTolerable(file.findings, arguments_.tolerated)) Raise(ExitStatus::kRefused);
      if (!arguments_.json) return PrintCheckedFile(file, std::cout);
      files_.push_back(std::move(file));
    } catch (const Failure& failure) {
      Tell(failure);
    }
  }

  void Tell(const Failure& failure) {
    for (const Complaint& complaint : failure.complaints) Print(Severity::kError, complaint);
    Raise(failure.status);
  }

  void Raise(ExitStatus status) { status_ = std::max(status_, status); }

  const CheckArguments& arguments_;
  std::vector<CheckedFile> files_;
  ExitStatus status_ = ExitStatus::kDone;
};

}  // namespace

void AddCheckCommand(CLI::App& app, Work& work) {
  auto arguments = std::make_shared<CheckArguments>();
  CLI::App* verb = app.add_subcommand("check", "Name everything that is odd in motion files");
  verb->add_option("FILE", arguments->inputs, "HTR files, and folders of them")
      ->required()
      ->type_name("");
  AddChoice(*verb, "--max-severity", {"note", "warning", "error"},
            "The worst finding that still ends with status 0 (note)",
            [arguments](const std::string& name) { arguments->tolerated = SeverityOf(name); });
  verb->add_flag("--json", arguments->json, "Write JSON");
  verb->callback([arguments, &work] { work = [arguments] { return Checking(*arguments).Run(); }; });
}

}  // namespace cli
