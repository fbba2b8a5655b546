#include "cli/common/check_report.h"
#include "cli/common/messages.h"
#include "formats/text/numbers.h"

namespace cli {
namespace {

using orvane::CheckedFile;
using orvane::CountOf;
using orvane::Finding;
using orvane::FindingList;
using orvane::FindingSeverity;
using orvane::SeverityName;

std::string Number(std::size_t value) {
  return orvane::FormatInt(static_cast<std::int64_t>(value));
}

// The form that compilers use, which editors can follow to the place.
void PrintFinding(const std::string& file, const Finding& finding, std::ostream& out) {
  out << file << ':' << Number(finding.line) << ':' << Number(finding.column) << ": "
      << SeverityName(finding.rule.severity) << ": found " << Printable(finding.found)
      << ", expected " << Printable(finding.expected) << " [" << finding.rule.code << "]\n  "
      << Printable(finding.effect) << '\n';
}

std::string Summary(const FindingList& findings) {
  std::string summary;
  for (const FindingSeverity severity :
       {FindingSeverity::kError, FindingSeverity::kWarning, FindingSeverity::kNote}) {
    const std::size_t count = findings.Count(severity);
    if (count == 0) continue;
    if (!summary.empty()) summary += ", ";
    summary += CountOf(count, SeverityName(severity));
  }
  return summary;
}

}  // namespace

void PrintCheckedFile(const CheckedFile& checked, std::ostream& out) {
  const std::string file = Printable(checked.file);
  if (checked.findings.IsEmpty()) {
    out << file << ": clean: " << checked.contents << '\n';
    return;
  }
  for (const Finding& finding : checked.findings.Sorted()) PrintFinding(file, finding, out);
  for (const auto& [code, total] : checked.findings.Totals()) {
    if (total.LeftOut() == 0) continue;
    out << file << ": and " << Number(total.LeftOut()) << " more of [" << code << "]\n";
  }
  out << file << ": " << Summary(checked.findings) << '\n';
}

}  // namespace cli
