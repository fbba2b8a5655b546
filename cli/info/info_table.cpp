#include "cli/info/info_table.h"

#include "cli/common/messages.h"
#include "cli/common/report.h"
#include "formats/text/numbers.h"
#include "inspect/check/findings.h"

namespace cli {
namespace {

using orvane::CountOf;
using orvane::FormatInt;

constexpr int kDecimals = 3;
constexpr const char* kNothing = "-";

std::string Number(std::size_t value) { return FormatInt(static_cast<std::int64_t>(value)); }

std::string Seconds(const std::optional<double>& seconds) {
  return seconds ? orvane::FormatDouble(*seconds, kDecimals) : kNothing;
}

std::string Subject(const std::optional<orvane::Subject>& subject, std::uint32_t length_unit) {
  return subject ? DescribeSubject(*subject, length_unit, std::nullopt) : kNothing;
}

std::string Frames(const InfoReport& report) {
  if (!report.motion) return FormatInt(report.document.GetNumFrames());
  const std::string most = Number(report.motion->most_frames);
  if (report.motion->fewest_frames == report.motion->most_frames) return most;
  return Number(report.motion->fewest_frames) + " to " + most;
}

}  // namespace

InfoTable::InfoTable()
    : table_({{"File"},
              {"Kind"},
              {"Holds"},
              {"Frames", Table::Side::kRight},
              {"Frames/s", Table::Side::kRight},
              {"Seconds", Table::Side::kRight},
              {"Subject"},
              {"Found"}}) {}

void InfoTable::Add(const InfoReport& report) {
  const orvane::HtrDocument& document = report.document;
  table_.Add(
      {Printable(report.file), ExtensionOf(FileKind::kHtr),
       CountOf(document.segments().size(), "segment"), Frames(report),
       FormatInt(document.GetDataFrameRate()),
       report.motion ? Seconds(report.motion->length_seconds) : kNothing,
       report.motion ? Subject(report.motion->subject, document.GetCalibrationUnits()) : kNothing,
       BriefCounts(report.findings)});
}

void InfoTable::Add(const TrcInfoReport& report) {
  const orvane::TRCDocument& document = report.document;
  table_.Add({Printable(report.file), ExtensionOf(FileKind::kTrc),
              CountOf(report.summary.markers.size(), "marker"), Number(report.summary.frames),
              FormatInt(document.DataRate()), Seconds(report.summary.length_seconds),
              Subject(report.subject, static_cast<std::uint32_t>(document.Units())),
              BriefCounts(report.findings)});
}

void InfoTable::Add(const std::string& file, FileKind kind, ExitStatus why) {
  table_.Add({Printable(file), ExtensionOf(kind), kNothing, kNothing, kNothing, kNothing, kNothing,
              why == ExitStatus::kInputOutput ? "unreadable" : "refused"});
}

void InfoTable::Print(std::ostream& out) const {
  if (!table_.IsEmpty()) table_.Print(out);
}

}  // namespace cli
