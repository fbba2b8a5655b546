#include "cli/common/check_results.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>

#include "cli/common/choice.h"
#include "cli/common/messages.h"
#include "cli/common/report.h"

namespace cli {
namespace {

using orvane::CheckedFile;
using orvane::FileReport;
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
            "The worst finding that still ends with status 0: \"warning\" tolerates warnings too, "
            "\"error\" everything (note)",
            [&manner](const std::string& name) { manner.tolerated = SeverityOf(name); });
  verb.add_flag("--json", manner.json, "Write JSON");
}

void CheckResults::Add(CheckedFile file) {
  if (manner_.action) return Add(ReportOn(file, *manner_.action));
  if (!IsTolerable(file.findings, manner_.tolerated)) Raise(ExitStatus::kRefused);
  if (manner_.quiet) return;
  if (manner_.json) return files_.push_back(std::move(file));
  if (manner_.by_code) return codes_.Add(file);
  PrintCheckedFile(file, std::cout);
}

void CheckResults::Add(const FileReport& report) {
  const auto& findings = report.findings;
  const bool is_tolerable = std::all_of(findings.begin(), findings.end(), [this](const auto& each) {
    return each.severity <= manner_.tolerated;
  });
  if (!is_tolerable) Raise(ExitStatus::kRefused);
  if (manner_.quiet) return;
  if (manner_.json) return reports_.push_back(report);
  if (manner_.by_code) return codes_.Add(report);
  PrintReport(report, std::cout);
}

void CheckResults::Add(const Failure& failure) {
  codes_.AddUnchecked();
  Complain(failure);
}

void CheckResults::Complain(const Failure& failure) {
  for (const Complaint& complaint : failure.complaints) Print(Severity::kError, complaint);
  Raise(failure.status);
}

ExitStatus CheckResults::Finish() {
  if (manner_.json) PrintJson();
  if (manner_.by_code && !manner_.json && !manner_.quiet) codes_.Print(std::cout);
  return status_;
}

void CheckResults::PrintJson() const {
  if (manner_.action) return PrintReportsJson(reports_, std::cout);
  PrintCheckJson(files_, std::cout);
}

}  // namespace cli
