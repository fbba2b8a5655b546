#include "cli/common/codes_over_files.h"

#include <algorithm>

#include "cli/common/messages.h"
#include "cli/common/page_text.h"
#include "cli/common/report.h"
#include "cli/common/tally.h"
#include "formats/text/numbers.h"

namespace cli {
namespace {

using orvane::CheckedFile;
using orvane::FileReport;
using orvane::Finding;
using orvane::FindingSeverity;

std::string Number(std::size_t value) {
  return orvane::FormatInt(static_cast<std::int64_t>(value));
}

// "found "59.94", expected a whole number (line 9, column 15). 59 is taken. [htr-rate-cut]"
std::string SentenceOf(const Finding& finding) {
  const std::string place = finding.line == 0 ? ""
                                              : " (line " + Number(finding.line) + ", column " +
                                                    Number(finding.column) + ")";
  return "found " + finding.found + ", expected " + finding.expected + place + ". " +
         finding.effect + " [" + std::string(finding.rule.code) + "]";
}

}  // namespace

CodesOverFiles::Code* CodesOverFiles::Meet(std::string_view code, FindingSeverity severity,
                                           const std::string& file, std::size_t count) {
  const auto [place, is_new] = places_.emplace(code, codes_.size());
  if (is_new) codes_.push_back({severity, {}, {}, 0, false});
  Code& met = codes_[place->second];
  met.files.push_back(file);
  met.count += count;
  return is_new ? &met : nullptr;
}

template <typename Findings>
void CodesOverFiles::CountFile(const Findings& findings) {
  bool is_clean = true;
  for (std::size_t severity = 0; severity < orvane::kFindingSeverities; ++severity) {
    if (findings.Count(static_cast<FindingSeverity>(severity)) == 0) continue;
    ++with_severity_[severity];
    is_clean = false;
  }
  ++files_;
  if (is_clean) ++clean_;
}

void CodesOverFiles::Add(const CheckedFile& file) {
  CountFile(file.findings);
  std::map<std::string_view, const Finding*> first;
  const std::vector<Finding> findings = file.findings.Sorted();
  for (const Finding& finding : findings) {
    const std::string_view code = finding.rule.code;
    if (!first.emplace(code, &finding).second) continue;
    const auto& total = file.findings.Totals().at(code);
    Code* const met = Meet(code, total.severity, file.file, total.count);
    if (met != nullptr) met->first = SentenceOf(finding);
  }
}

void CodesOverFiles::Add(const FileReport& report) {
  CountFile(report);
  purpose_ = " for " + std::string(NameOf(report.action));
  for (const orvane::ReportedFinding& finding : report.findings) {
    Code* const met = Meet(finding.code, finding.severity, report.file, finding.count);
    if (met == nullptr) continue;
    met->first = LineOf(finding);
    met->tells_count = true;
  }
}

std::vector<const CodesOverFiles::Code*> CodesOverFiles::WorstFirst() const {
  std::vector<const Code*> worst_first;
  for (const Code& code : codes_) worst_first.push_back(&code);
  std::stable_sort(worst_first.begin(), worst_first.end(), [](const Code* left, const Code* right) {
    return left->severity > right->severity;
  });
  return worst_first;
}

void CodesOverFiles::Print(std::ostream& out) const {
  for (const Code* code : WorstFirst()) {
    const bool is_told = code->count == 1 || (code->tells_count && code->files.size() == 1);
    out << Printable(FewOf(code->files)) << ": " << SeverityName(code->severity) << ": "
        << (is_told ? "" : Number(code->count) + " times, first: ") << Printable(code->first)
        << '\n';
  }
  if (files_ > 0) PrintTotal(out);
}

void CodesOverFiles::PrintTotal(std::ostream& out) const {
  const auto with = [this](FindingSeverity severity) {
    return with_severity_[static_cast<std::size_t>(severity)];
  };
  out << TallyOf(files_,
                 {{with(FindingSeverity::kError), "has errors", "have errors"},
                  {with(FindingSeverity::kWarning), "has warnings", "have warnings"},
                  {with(FindingSeverity::kNote), "has notes", "have notes"},
                  {clean_, "is clean", "are clean"},
                  {unchecked_, "could not be checked", "could not be checked"}},
                 purpose_)
      << '\n';
}

}  // namespace cli
