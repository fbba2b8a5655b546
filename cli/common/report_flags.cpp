#include "cli/common/report_flags.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <sstream>

#include "cli/common/choice.h"
#include "cli/common/codes_over_files.h"
#include "cli/common/failure.h"
#include "cli/common/messages.h"
#include "cli/common/outputs.h"
#include "cli/common/report.h"
#include "inspect/report/finding_words.h"
#include "platform/file_place.h"
#include "platform/output_file.h"

namespace cli {
namespace {

using orvane::FileReport;
using orvane::FindingSeverity;
using orvane::ReportedFinding;

Severity SeverityOf(FindingSeverity severity) {
  return severity == FindingSeverity::kError ? Severity::kError : Severity::kWarning;
}

// "30 times in 3 files, first here: ", for the file that is named in front of it.
std::string Extent(const CodesOverFiles::Code& code) {
  const std::size_t files = code.files.size();
  if (files == 1) return "";
  const std::string times = code.count == files ? "" : orvane::CountOf(code.count, "time") + " ";
  return times + "in " + orvane::CountOf(files, "file") + ", first here: ";
}

std::string NothingWritten(const ReportManner& manner, const std::vector<std::string_view>& codes) {
  const std::string nothing = manner.dry_run ? "nothing would be written" : "nothing was written";
  return nothing + " because of " + ListOf(codes);
}

// `beside` is a word that is taken beside codes; empty for none.
std::string WhyNoCode(const std::string& code, const std::string& beside) {
  if (code == beside || orvane::FindMeaning(code) != nullptr) return "";
  std::vector<std::string> words = orvane::AllFindingCodes();
  if (!beside.empty()) words.push_back(beside);
  return "no finding has the code " + code + DidYouMean(code, words);
}

}  // namespace

void AddTellingFlags(CLI::App& verb, ReportManner& manner) {
  CLI::Option* report =
      RequireName(verb.add_option("--report", manner.file,
                                  "Write what is found in the files to this file too, as JSON; one "
                                  "that is there is replaced, but none that is read or made"))
          ->type_name("FILE.json");
  verb.add_flag("--no-report", manner.omitted, "Look for nothing in the files")->excludes(report);
}

void AddReportFlags(CLI::App& verb, ReportManner& manner, const std::string& beside) {
  AddTellingFlags(verb, manner);
  CLI::Option* strict =
      verb.add_flag("--strict", manner.strict, "A warning is a refusal: status 1");
  strict->excludes(verb.get_option("--no-report"));
  CLI::Option* allow =
      verb.add_option("--allow", manner.allowed,
                      "With --strict: codes that are no reason to refuse; may be repeated")
          ->delimiter(',')
          ->expected(1)
          ->allow_extra_args(false)
          ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
          ->check([beside](const std::string& code) { return WhyNoCode(code, beside); }, "")
          ->type_name("CODE,...");
  if (beside.empty()) allow->needs(strict);
}

void Tell(const FileReport& report, const ReportManner& manner) {
  if (manner.gathered != nullptr) return manner.gathered->push_back(report);
  for (const ReportedFinding& finding : report.findings) {
    if (manner.only_warnings && finding.severity == FindingSeverity::kNote) continue;
    Print(SeverityOf(finding.severity),
          {report.file, std::string(SeverityName(finding.severity)) + ": " + LineOf(finding), ""});
  }
}

void TellAll(const std::vector<FileReport>& reports, const ReportManner& manner) {
  if (reports.size() == 1) return Tell(reports.front(), manner);
  CodesOverFiles codes;
  for (const FileReport& report : reports) codes.Add(report);
  for (const CodesOverFiles::Code* code : codes.WorstFirst()) {
    if (manner.only_warnings && code->severity == FindingSeverity::kNote) continue;
    Print(SeverityOf(code->severity),
          {code->files.front(),
           std::string(SeverityName(code->severity)) + ": " + Extent(*code) + code->first, ""});
  }
}

std::vector<std::string_view> ForbiddingCodes(const ReportManner& manner,
                                              const FileReport& report) {
  std::vector<std::string_view> codes;
  if (!manner.strict) return codes;
  const auto& allowed = manner.allowed;
  for (const ReportedFinding& finding : report.findings) {
    const bool is_allowed =
        std::find(allowed.begin(), allowed.end(), finding.code) != allowed.end();
    if (finding.severity != FindingSeverity::kNote && !is_allowed) codes.push_back(finding.code);
  }
  return codes;
}

bool Forbids(const ReportManner& manner, const FileReport& report) {
  return !ForbiddingCodes(manner, report).empty();
}

std::string ListOf(const std::vector<std::string_view>& codes) {
  std::string list;
  for (const std::string_view code : codes) list.append(list.empty() ? "" : ", ").append(code);
  return list;
}

Failure RefusedForErrors(const ReportManner& manner, const FileReport& report,
                         std::vector<Complaint> complaints, const std::string& advice) {
  std::vector<std::string_view> codes;
  for (const ReportedFinding& finding : report.findings) {
    if (finding.severity == FindingSeverity::kError) codes.push_back(finding.code);
  }
  complaints.push_back({report.file, NothingWritten(manner, codes), advice});
  return {ExitStatus::kRefused, std::move(complaints)};
}

Failure ForbiddenByStrict(const ReportManner& manner, const FileReport& report) {
  return {ExitStatus::kRefused,
          {{"--strict", NothingWritten(manner, ForbiddingCodes(manner, report)), ""}}};
}

void RequireReportApart(const ReportManner& manner, const std::vector<std::string>& inputs,
                        const std::vector<std::string>& outputs) {
  if (manner.file.empty()) return;
  RequireNoInput(manner.file, inputs);
  const std::string place = platform::PlaceOf(manner.file);
  for (const std::string& output : outputs) {
    if (platform::PlaceOf(output) != place) continue;
    throw Failure{ExitStatus::kWrongUsage,
                  {{manner.file, "would be the report and another output too", ""}}};
  }
}

void WriteReportFile(const std::vector<FileReport>& reports, const ReportManner& manner) {
  if (manner.file.empty()) return;
  std::ostringstream text;
  PrintReportsJson(reports, text);
  platform::OutputFile file(manner.file, true);
  std::string reason = file.WhyImpossible();
  if (reason.empty()) reason = file.Write(text.str());
  if (reason.empty()) reason = file.Deliver();
  if (reason.empty()) return;
  throw Failure{ExitStatus::kInputOutput, {ComplainAboutOutput(manner.file, file, reason)}};
}

}  // namespace cli
