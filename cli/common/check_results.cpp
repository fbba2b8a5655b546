#include "cli/common/check_results.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>

#include "cli/common/choice.h"
#include "cli/common/messages.h"

namespace cli {
namespace {

using orvane::CheckedFile;
using orvane::FindingList;
using orvane::FindingSeverity;

FindingSeverity SeverityOf(const std::string& name) {
  if (name == "error") return FindingSeverity::kError;
  return name == "warning" ? FindingSeverity::kWarning : FindingSeverity::kNote;
}

bool IsTolerable(const FindingList& findings, FindingSeverity tolerated) {
  const auto& totals = findings.Totals();
  return std::all_of(totals.begin(), totals.end(),
                     [tolerated](const auto& total) { return total.second.severity <= tolerated; });
}

}  // namespace

void AddCheckManner(CLI::App& verb, CheckManner& manner) {
  AddChoice(verb, "--max-severity", {"note", "warning", "error"},
            "The worst finding that still ends with status 0 (note)",
            [&manner](const std::string& name) { manner.tolerated = SeverityOf(name); });
  verb.add_flag("--json", manner.json, "Write JSON");
}

void CheckResults::Add(CheckedFile file) {
  if (!IsTolerable(file.findings, manner_.tolerated)) Raise(ExitStatus::kRefused);
  if (!manner_.json) return PrintCheckedFile(file, std::cout);
  files_.push_back(std::move(file));
}

void CheckResults::Add(const Failure& failure) {
  for (const Complaint& complaint : failure.complaints) Print(Severity::kError, complaint);
  Raise(failure.status);
}

ExitStatus CheckResults::Finish() {
  if (manner_.json) PrintCheckJson(files_, std::cout);
  return status_;
}

}  // namespace cli
