#include "cli/common/told_reading.h"

#include "cli/common/input.h"
#include "formats/htr/reader.h"
#include "inspect/check/htr_check.h"
#include "inspect/check/trc_check.h"

namespace cli {
namespace {

using orvane::Action;
using orvane::CheckedFile;
using orvane::FileReport;

// Tells of what `check` finds in `file`.
template <typename Check>
FileReport CheckAndTell(const std::string& file, const ReportManner& manner, const Check& check) {
  try {
    const CheckedFile checked = check();
    FileReport report = ReportOn(checked, Action::kInspect);
    Tell(report, manner);
    if (!checked.refusal.empty()) throw Refused(file, checked.refusal);
    return report;
  } catch (const orvane::CheckFailure& failure) {
    throw Failure{ExitStatus::kInputOutput, {{file, failure.what(), failure.Advice()}}};
  }
}

}  // namespace

Failure Refused(const std::string& file, const std::string& text) {
  return {ExitStatus::kRefused, {ComplainAbout(file, text)}};
}

FileReport ReadAndTell(orvane::HtrDocument& document, const std::string& file, Motion motion,
                       const ReportManner& manner) {
  const std::string bytes = FileBytes(file);
  if (motion == Motion::kRead && !manner.omitted) {
    return CheckAndTell(file, manner, [&] { return orvane::CheckHtr(file, bytes, document); });
  }
  const std::string error = orvane::ReadHtrBytes(document, bytes, motion == Motion::kRead);
  if (!error.empty()) throw Refused(file, error);
  return {};
}

FileReport ReadAndTell(orvane::TRCDocument& document, const std::string& file,
                       std::string_view bytes, const ReportManner& manner) {
  if (!manner.omitted) {
    return CheckAndTell(file, manner, [&] { return orvane::CheckTrc(file, bytes, document); });
  }
  const std::string error = document.ReadBytes(bytes, false);
  if (!error.empty()) throw Refused(file, error);
  return {};
}

}  // namespace cli
