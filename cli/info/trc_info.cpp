#include "cli/info/trc_info.h"

#include "cli/common/input_source.h"
#include "cli/common/reading_memory.h"
#include "cli/common/told_reading.h"
#include "formats/trc/outline.h"
#include "inspect/summary/subject_measure.h"

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

// Reads the rates once more, for what their texts lose: the checks have an observer of their own.
void ReadRateTexts(const InputFile& file, TrcInfoReport& report) {
  InputSource source(file);
  orvane::TRCDocument header;
  RateObserver observer(report);
  // What the header lacks has been told.
  (void)header.ReadBytes(orvane::TrcHeaderOf(source), false, &observer);
}

}  // namespace

void ReadTrcInfo(const InputFile& file, const ReportManner& manner,
                 const std::optional<orvane::FrameSpan>& cut, TrcInfoReport& report) {
  report.file = file.name;
  ExpectReading(file.path);
  report.findings = ReadAndTell(report.document, file, manner, {}, cut);
  ReadRateTexts(file, report);
  report.subject = orvane::MeasureSubject(report.document);
  report.summary = SummarizeTrc(report.document);
}

}  // namespace cli
