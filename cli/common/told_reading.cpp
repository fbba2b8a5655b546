#include "cli/common/told_reading.h"

#include <utility>

#include "cli/common/cut_frames.h"
#include "cli/common/failure.h"
#include "cli/common/input.h"
#include "cli/common/input_source.h"
#include "cli/common/known_messages.h"
#include "cli/common/report.h"
#include "formats/htr/reader.h"
#include "inspect/check/htr_check.h"
#include "inspect/check/trc_check.h"
#include "inspect/report/cut_check.h"

namespace cli {
namespace {

using orvane::CheckedFile;
using orvane::FileReport;
using orvane::FrameSpan;
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

CheckedFile Check(const InputFile& file, HtrDocument& document) {
  InputSource source(file);
  return orvane::CheckHtr(file.name, source, document);
}
CheckedFile Check(const InputFile& file, TRCDocument& document) {
  InputSource source(file);
  return orvane::CheckTrc(file.name, source, document);
}

std::string ReadAgain(std::string_view bytes, HtrDocument& document) {
  return orvane::ReadHtrBytes(document, bytes, true);
}
std::string ReadAgain(std::string_view bytes, TRCDocument& document) {
  return document.ReadBytes(bytes, false);
}

// Of frames that are not there the refusal tells.
constexpr char kToldByRefusal[] = "cut-range-outside";

template <typename Document>
FileReport ReportOnReading(CheckedFile& checked, const Document& document,
                           const std::optional<FrameSpan>& cut, const Purpose& purpose) {
  orvane::ActionOptions options = purpose.options;
  if (cut && checked.refusal.empty() && WhyEmpty(document).empty()) {
    CheckCut(*cut, FramesHeld(document), checked);
    options.frames = orvane::AskedFrames::kHeld;
  }
  FileReport report = ReportOn(checked, purpose.action, options);
  for (const std::string_view code : purpose.settled) report = report.Without(code);
  for (const auto& [code, consequence] : purpose.consequences) {
    for (orvane::ReportedFinding& finding : report.findings) {
      if (finding.code == code) finding.consequence = consequence;
    }
  }
  return report;
}

// As the reader takes the file, it takes what is cut out of it.
template <typename Document>
void CutDown(Document& document, const InputFile& file, const FrameSpan& asked) {
  const FrameSpan held = FramesHeld(document);
  const FrameSpan frames = Overlap(asked, held);
  if (frames.IsEmpty()) {
    throw Failure{ExitStatus::kRefused, {ComplainAboutCut(file.name, asked, held)}};
  }
  (void)ReadAgain(CutOut(file.name, FileBytes(file), document, frames), document);
}

template <typename Document>
FileReport CheckAndTell(Document& document, const InputFile& file, const ReportManner& manner,
                        std::vector<FileReport> reports, const std::optional<FrameSpan>& cut,
                        const Purpose& purpose) {
  try {
    CheckedFile checked = Check(file, document);
    reports.push_back(ReportOnReading(checked, document, cut, purpose));
    const FileReport told = reports.back().Without(kToldByRefusal);
    Tell(told, manner);
    const std::string why = checked.refusal.empty() ? WhyEmpty(document) : checked.refusal;
    const bool is_outside = told.findings.size() < reports.back().findings.size();
    if (why.empty() && !is_outside) return reports.back();
    WriteReportFile(reports, manner);
    if (why.empty()) {
      throw Failure{ExitStatus::kRefused,
                    {WithCode(ComplainAboutCut(file.name, *cut, FramesHeld(document)),
                              reports.back(), {kToldByRefusal})}};
    }
    // An error that has been told is why nothing was found.
    const bool is_told = checked.refusal.empty() && reports.back().Count(kError) > 0;
    if (is_told) throw Failure{ExitStatus::kRefused, {}};
    throw Failure{ExitStatus::kRefused, {ComplainAbout(file.name, why)}};
  } catch (const orvane::CheckFailure& failure) {
    throw Failure{ExitStatus::kInputOutput, {{file.name, failure.what(), failure.Advice()}}};
  }
}

// Of a file of which nothing has been told.
void RequireTaken(const InputFile& file, FileKind kind, const std::string& why) {
  if (!why.empty()) throw Failure{ExitStatus::kRefused, ComplainAboutRefusal(file, kind, why)};
}

}  // namespace

FileReport ReadAndTell(HtrDocument& document, const InputFile& file, Motion motion,
                       const ReportManner& manner, std::vector<FileReport> reports,
                       const std::optional<FrameSpan>& cut, const Purpose& purpose) {
  FileReport report;
  if (motion == Motion::kRead && !manner.omitted) {
    report = CheckAndTell(document, file, manner, std::move(reports), cut, purpose);
  } else {
    InputSource source(file);
    const std::string error = orvane::ReadHtrFrom(document, source, motion == Motion::kRead);
    RequireTaken(file, FileKind::kHtr, error.empty() ? WhyEmpty(document) : error);
  }
  if (cut) CutDown(document, file, *cut);
  return report;
}

FileReport ReadAndTell(TRCDocument& document, const InputFile& file, const ReportManner& manner,
                       std::vector<FileReport> reports, const std::optional<FrameSpan>& cut,
                       const Purpose& purpose) {
  FileReport report;
  if (!manner.omitted) {
    report = CheckAndTell(document, file, manner, std::move(reports), cut, purpose);
  } else {
    InputSource source(file);
    const std::string error = document.ReadFrom(source, false);
    RequireTaken(file, FileKind::kTrc, error.empty() ? WhyEmpty(document) : error);
  }
  if (cut) CutDown(document, file, *cut);
  return report;
}

}  // namespace cli
