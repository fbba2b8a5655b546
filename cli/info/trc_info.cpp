#include "cli/info/trc_info.h"

#include "cli/common/input.h"
#include "cli/common/known_messages.h"
#include "cli/common/told_reading.h"

namespace cli {
namespace {

using orvane::SummarizeTrc;

constexpr std::size_t kDataRateField = 1;
constexpr std::size_t kCameraRateField = 2;

// Keeps rates that lost something in reading.
class RateObserver final : public orvane::TRCReadObserver {
 public:
  explicit RateObserver(TrcInfoReport& report) : report_(report) {}

  void OnOddity(orvane::TRCOddity oddity, orvane::TRCPlace place, std::string_view text) override {
    if (oddity != orvane::TRCOddity::kRateTruncated) return;
    if (place.field == kDataRateField) report_.data_rate_text = text;
    if (place.field == kCameraRateField) report_.camera_rate_text = text;
  }
  bool WatchesFrames() const override { return false; }

 private:
  TrcInfoReport& report_;
};

// The start of a file that tells its rates: three lines.
std::string_view RateLines(std::string_view bytes) {
  constexpr int kLines = 3;
  std::size_t end = 0;
  for (int line = 0; line < kLines && end != std::string_view::npos; ++line) {
    end = bytes.find('\n', end);
    if (end != std::string_view::npos) ++end;
  }
  return bytes.substr(0, end);
}

// Reads the rates once more, for what their texts lose: the checks have an observer of their own.
void ReadRateTexts(std::string_view bytes, TrcInfoReport& report) {
  orvane::TRCDocument header;
  RateObserver observer(report);
  // What is missing behind the rates has been told, or refused.
  (void)header.ReadBytes(RateLines(bytes), false, &observer);
}

}  // namespace

void ReadTrcInfo(const std::string& file, const ReportManner& manner, TrcInfoReport& report) {
  report.file = file;
  const std::string bytes = FileBytes(file);
  report.findings = ReadAndTell(report.document, file, bytes, manner);
  if (report.document.MarkerCount() == 0) throw Refused(file, kNoMarkers);
  ReadRateTexts(bytes, report);
  report.subject = orvane::MeasureSubject(report.document);
  report.summary = SummarizeTrc(report.document);
}

}  // namespace cli
