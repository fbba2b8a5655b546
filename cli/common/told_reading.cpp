#include "cli/common/told_reading.h"

#include <utility>

#include "cli/common/failure.h"
#include "cli/common/input.h"
#include "cli/common/known_messages.h"
#include "formats/htr/reader.h"
#include "inspect/check/htr_check.h"
#include "inspect/check/trc_check.h"

namespace cli {
namespace {

using orvane::Action;
using orvane::CheckedFile;
using orvane::FileReport;
using orvane::HtrDocument;
using orvane::TRCDocument;

constexpr auto kError = orvane::FindingSeverity::kError;

// What the file of `document`, which its reader takes, is refused for all the same.
std::string WhyEmpty(const HtrDocument& document) {
  return document.segments().empty() ? kNoSegments : "";
}
std::string WhyEmpty(const TRCDocument& document) {
  return document.MarkerCount() == 0 ? kNoMarkers : "";
}

CheckedFile Check(const std::string& file, std::string_view bytes, HtrDocument& document) {
  return orvane::CheckHtr(file, bytes, document);
}
CheckedFile Check(const std::string& file, std::string_view bytes, TRCDocument& document) {
  return orvane::CheckTrc(file, bytes, document);
}

template <typename Document>
FileReport CheckAndTell(Document& document, const std::string& file, std::string_view bytes,
                        const ReportManner& manner, std::vector<FileReport> reports = {}) {
  try {
    const CheckedFile checked = Check(file, bytes, document);
    reports.push_back(ReportOn(checked, Action::kInspect));
    Tell(reports.back(), manner);
    const std::string why = checked.refusal.empty() ? WhyEmpty(document) : checked.refusal;
    if (why.empty()) return reports.back();
    WriteReportFile(reports, manner);
    // An error that has been told is why nothing was found.
    const bool is_told = checked.refusal.empty() && reports.back().Count(kError) > 0;
    if (is_told) throw Failure{ExitStatus::kRefused, {}};
    throw Failure{ExitStatus::kRefused, {ComplainAbout(file, why)}};
  } catch (const orvane::CheckFailure& failure) {
    throw Failure{ExitStatus::kInputOutput, {{file, failure.what(), failure.Advice()}}};
  }
}

// Of a file of which nothing has been told.
void RequireTaken(const std::string& file, FileKind kind, const std::string& why) {
  if (!why.empty()) throw Failure{ExitStatus::kRefused, ComplainAboutRefusal(file, kind, why)};
}

}  // namespace

FileReport ReadAndTell(HtrDocument& document, const std::string& file, Motion motion,
                       const ReportManner& manner, std::vector<FileReport> reports) {
  const std::string bytes = FileBytes(file);
  if (motion == Motion::kRead && !manner.omitted) {
    return CheckAndTell(document, file, bytes, manner, std::move(reports));
  }
  const std::string error = orvane::ReadHtrBytes(document, bytes, motion == Motion::kRead);
  RequireTaken(file, FileKind::kHtr, error.empty() ? WhyEmpty(document) : error);
  return {};
}

FileReport ReadAndTell(TRCDocument& document, const std::string& file, std::string_view bytes,
                       const ReportManner& manner, std::vector<FileReport> reports) {
  if (!manner.omitted) return CheckAndTell(document, file, bytes, manner, std::move(reports));
  const std::string error = document.ReadBytes(bytes, false);
  RequireTaken(file, FileKind::kTrc, error.empty() ? WhyEmpty(document) : error);
  return {};
}

}  // namespace cli
