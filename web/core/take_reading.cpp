#include "web/core/take_reading.h"

#include <algorithm>
#include <cstddef>

namespace web {

using orvane::FindingSeverity;
using orvane::ReportedFinding;

orvane::FileSource OpenFile(const std::string& path) {
  orvane::FileSource source(path);
  if (!source.IsOpen()) throw Refusal{orvane::kNotOpened};
  return source;
}

Refusal RefusalOf(const orvane::CheckedFile& checked, const std::string& why) {
  const orvane::FileReport report = ReportOn(checked, orvane::Action::kInspect);
  const auto is_error = [](const ReportedFinding& each) {
    return each.severity == FindingSeverity::kError;
  };
  const auto error = std::find_if(report.findings.begin(), report.findings.end(), is_error);
  if (error == report.findings.end()) return {why, "file-refused"};
  return {error->cause + ". " + error->consequence, std::string(error->code), error->line,
          error->column};
}

}  // namespace web
