#include "python/binding/findings.h"

#include "inspect/check/findings.h"
#include "python/binding/text.h"

namespace nb = nanobind;

namespace binding {

FindingList FindingsOf(const orvane::FileReport& report) {
  FindingList findings;
  for (const orvane::ReportedFinding& finding : report.findings) {
    findings.append(nb::make_tuple(TextOf(finding.code), TextOf(SeverityName(finding.severity)),
                                   finding.count, finding.line, finding.column,
                                   nb::tuple(TextsOf(finding.names)), TextOf(finding.cause),
                                   TextOf(finding.consequence)));
  }
  return findings;
}

}  // namespace binding
