#include "python/binding/reading.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "formats/htr/reader.h"
#include "formats/text/numbers.h"
#include "inspect/check/htr_check.h"
#include "inspect/check/trc_check.h"
#include "inspect/counts/frame_span.h"
#include "inspect/summary/first_time.h"

namespace binding {
namespace {

using orvane::ByteSource;
using orvane::CheckedFile;
using orvane::FileReport;
using orvane::HtrDocument;
using orvane::TRCDocument;

// Blank lines, and frames that few segments hold, may make far more of a file than it seems to
// hold.
constexpr std::size_t kMostOfFile = 8;
constexpr std::size_t kLargestOfAny = 512'000'000;

std::string ReadPlainly(ByteSource& source, TRCDocument& document) {
  return document.ReadFrom(source, false);
}
std::string ReadPlainly(ByteSource& source, HtrDocument& document) {
  return ReadHtrFrom(document, source, true);
}

CheckedFile Check(const std::string& name, ByteSource& source, TRCDocument& document) {
  return CheckTrc(name, source, document);
}
CheckedFile Check(const std::string& name, ByteSource& source, HtrDocument& document) {
  return CheckHtr(name, source, document);
}

std::optional<orvane::FrameRate> RateOf(ByteSource& source, const TRCDocument& /*document*/) {
  return FrameRateOfTrc(source);
}
std::optional<orvane::FrameRate> RateOf(ByteSource& source, const HtrDocument& /*document*/) {
  return FrameRateOfHtr(source);
}

double FirstTimeOf(ByteSource& source, const TRCDocument& /*document*/) {
  return FirstTimeOfTrc(source);
}
double FirstTimeOf(ByteSource& /*source*/, const HtrDocument& /*document*/) { return 0.0; }

std::string WhyEmpty(const TRCDocument& document) {
  return document.MarkerCount() == 0 ? "The file holds no markers" : "";
}
std::string WhyEmpty(const HtrDocument& document) {
  return document.segments().empty() ? "The file holds no segments" : "";
}

// Numbers for each frame: x, y and z of a marker; translation, rotation and scale of a segment.
std::size_t NumbersPerFrame(const TRCDocument& document) { return 3UL * document.MarkerCount(); }
std::size_t NumbersPerFrame(const HtrDocument& document) { return 7 * document.segments().size(); }

// The error that is found in the file tells more than its reader.
FileRefusal Refusal(const FileReport& report, const std::string& why) {
  for (const orvane::ReportedFinding& finding : report.findings) {
    if (finding.severity != orvane::FindingSeverity::kError) continue;
    return {report.file, finding.cause + ". " + finding.consequence, std::string(finding.code),
            finding.line, finding.column};
  }
  return {report.file, why, "file-refused"};
}

template <typename Document>
FileReport ReadAndCheck(const Input& input, Document& document) {
  try {
    const auto source = input.Open();
    const CheckedFile checked = Check(input.Name(), *source, document);
    FileReport report = ReportOn(checked, orvane::Action::kInspect);
    const std::string why = checked.refusal.empty() ? WhyEmpty(document) : checked.refusal;
    if (!why.empty()) throw Refusal(report, why);
    return report;
  } catch (const orvane::CheckFailure& failure) {
    throw FileRefusal{input.Name(), std::string(failure.what()) + ". " + failure.Advice(),
                      "file-misread"};
  }
}

template <typename Document>
bool IsTaken(const Input& input, Document& document) {
  const auto source = input.Open();
  return ReadPlainly(*source, document).empty() && WhyEmpty(document).empty();
}

std::string Megabytes(std::size_t bytes) {
  const auto millions = static_cast<double>(bytes) / 1e6;
  return orvane::FormatDouble(millions, millions < 100 ? 3 : 0) + " MB";
}

template <typename Document>
void RequireProportion(const Input& input, std::size_t file_size, const Document& document) {
  const auto frames = static_cast<std::size_t>(FramesHeld(document).Count());
  const std::size_t array_size = frames * NumbersPerFrame(document) * sizeof(double);
  if (array_size <= std::max(kLargestOfAny, kMostOfFile * file_size)) return;
  throw FileRefusal{input.Name(),
                    "An array of its frames would take " + Megabytes(array_size) +
                        ", and the file has " + Megabytes(file_size) +
                        ": more than 8 times as much, and more than 512 MB",
                    "array-too-large"};
}

template <typename Document>
Reading ReadInto(const Input& input, bool check, Document& document) {
  Reading reading;
  if (check) {
    reading.report = ReadAndCheck(input, document);
  } else if (!IsTaken(input, document)) {
    Document again;
    (void)ReadAndCheck(input, again);  // which tells why
  }
  const auto source = input.Open();
  RequireProportion(input, source->Size(), document);
  reading.rate = RateOf(*source, document);
  reading.first_time = FirstTimeOf(*input.Open(), document);
  return reading;
}

}  // namespace

Reading Read(const Input& input, bool check, TRCDocument& document) {
  return ReadInto(input, check, document);
}

Reading Read(const Input& input, bool check, HtrDocument& document) {
  return ReadInto(input, check, document);
}

FileRefusal TooLarge(const std::string& path, const orvane::ArrayTooLarge& error) {
  return {path,
          "An array of its frames would take " + Megabytes(error.NeededBytes()) + " for " +
              Megabytes(error.HeldBytes()) +
              " of numbers: more than 8 times as much, and more than 512 MB",
          "array-too-large"};
}

}  // namespace binding
