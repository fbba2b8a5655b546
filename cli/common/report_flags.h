#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/common/failure.h"
#include "inspect/report/report.h"

// What a verb does with the report on a file before it sets to work: it tells it, writes it to a
// file, and lets a warning be a refusal.

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

struct ReportManner {
  bool omitted = false;              // nothing is looked for in the file
  bool strict = false;               // a warning is a refusal
  std::vector<std::string> allowed;  // codes that are none even then
  std::string file;                  // to write the report to; empty for none
  bool only_warnings = false;        // and errors are told, no notes
  bool dry_run = false;              // nothing is written, whatever is found
  // Where reports go that are told later, together; null when each is told at once.
  std::vector<orvane::FileReport>* gathered = nullptr;
};

// Adds the flags to `verb` that set `manner`, which must outlive the parsing: all of them to one
// that makes something of files, and to one that only tells of them those that do not forbid.
// `beside` is a word that --allow takes beside codes; a verb that has one looks itself whether the
// codes have --strict.
void AddReportFlags(CLI::App& verb, ReportManner& manner, const std::string& beside = "");
void AddTellingFlags(CLI::App& verb, ReportManner& manner);

// Tells of `report` on standard error, a line a code, or puts it where `manner` gathers them.
void Tell(const orvane::FileReport& report, const ReportManner& manner);

// Tells of `reports`: of one as above, of several a line for each code over all of them, with the
// numbers of times and of files, and the first.
void TellAll(const std::vector<orvane::FileReport>& reports, const ReportManner& manner);

// What in `report` keeps a strict user's file from being worked on, each code once, the worst
// first; none when he is not strict. The codes live as long as the program.
[[nodiscard]] std::vector<std::string_view> ForbiddingCodes(const ReportManner& manner,
                                                            const orvane::FileReport& report);

// Whether there are any.
[[nodiscard]] bool Forbids(const ReportManner& manner, const orvane::FileReport& report);

// "trc-number-missing, trc-frame-count".
[[nodiscard]] std::string ListOf(const std::vector<std::string_view>& codes);

// That nothing comes of the work because of those in `report`.
// REQUIRES: there are any.
[[nodiscard]] Failure ForbiddenByStrict(const ReportManner& manner,
                                        const orvane::FileReport& report);

// The same because of the errors in `report`, behind what else is to be told of it.
[[nodiscard]] Failure RefusedForErrors(const ReportManner& manner, const orvane::FileReport& report,
                                       std::vector<Complaint> complaints,
                                       const std::string& advice = "");

// Throws a Failure for wrong usage when the report would take the place of one of `inputs`, which
// are read, or of `outputs`, which are made.
void RequireReportApart(const ReportManner& manner, const std::vector<std::string>& inputs,
                        const std::vector<std::string>& outputs);

// Writes `reports` to the file that `manner` names, if it names one. Throws a Failure when that
// cannot be written; a file that is there is replaced.
void WriteReportFile(const std::vector<orvane::FileReport>& reports, const ReportManner& manner);

}  // namespace cli
