#include "cli/trc_markers.h"

#include "cli/input.h"
#include "cli/trc_outline.h"
#include "formats/trc/document.h"

namespace cli {
namespace {

class MarkerListener final : public orvane::TRCReadObserver {
 public:
  void OnOddity(orvane::TRCOddity /*oddity*/, orvane::TRCPlace /*place*/,
                std::string_view /*text*/) override {}
  void OnMarker(orvane::TRCPlace place, std::string_view name) override {
    markers.push_back({std::string(name), place});
  }
  bool WatchesFrames() const override { return false; }

  std::vector<TrcMarkerName> markers;
};

}  // namespace

std::vector<TrcMarkerName> ReadTrcMarkers(const std::string& file) {
  const std::optional<orvane::TRCOutliner> outline = OutlineTrcFile(file);
  if (!outline)
    throw Failure{ExitStatus::kInputOutput, {{file, "could not be read to its end", ""}}};
  orvane::TRCDocument document;
  MarkerListener listener;
  std::string message = document.ReadBytes(outline->Header(), false, &listener);
  if (message.empty() && listener.markers.empty()) message = kNoMarkers;
  if (!message.empty()) {
    throw Failure{ExitStatus::kRefused, ComplainAboutRefusal(file, FileKind::kTrc, message)};
  }
  return std::move(listener.markers);
}

}  // namespace cli
