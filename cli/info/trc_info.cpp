#include "cli/info/trc_info.h"

#include "cli/common/input.h"
#include "cli/common/known_messages.h"

namespace cli {
namespace {

using orvane::SummarizeTrc;

constexpr std::size_t kDataRateField = 1;
constexpr std::size_t kCameraRateField = 2;

// Keeps rates that lost something in reading.
class RateListener final : public orvane::TRCReadObserver {
 public:
  explicit RateListener(TrcInfoReport& report) : report_(report) {}

  void OnOddity(orvane::TRCOddity oddity, orvane::TRCPlace place, std::string_view text) override {
    if (oddity != orvane::TRCOddity::kRateTruncated) return;
    if (place.field == kDataRateField) report_.data_rate_text = text;
    if (place.field == kCameraRateField) report_.camera_rate_text = text;
  }
  bool WatchesFrames() const override { return false; }

 private:
  TrcInfoReport& report_;
};

Failure Refused(const std::string& file, const std::string& text) {
  return {ExitStatus::kRefused, ComplainAboutRefusal(file, FileKind::kTrc, text)};
}

}  // namespace

void ReadTrcInfo(const std::string& file, TrcInfoReport& report) {
  report.file = file;
  RateListener listener(report);
  const std::string error = report.document.Read(file, false, &listener);
  if (!error.empty()) throw Refused(file, error);
  if (report.document.MarkerCount() == 0) throw Refused(file, kNoMarkers);
  report.summary = SummarizeTrc(report.document);
}

}  // namespace cli
