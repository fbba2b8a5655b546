#include "cli/trc_markers.h"

#include "formats/trc/document.h"

namespace cli {
namespace {

class MarkerListener final : public orvane::TRCReadObserver {
 public:
  explicit MarkerListener(std::vector<TrcMarkerName>& markers) : markers_(markers) {}

  void OnOddity(orvane::TRCOddity /*oddity*/, orvane::TRCPlace /*place*/,
                std::string_view /*text*/) override {}
  void OnMarker(orvane::TRCPlace place, std::string_view name) override {
    markers_.push_back({std::string(name), place});
  }
  bool WatchesFrames() const override { return false; }

 private:
  std::vector<TrcMarkerName>& markers_;
};

}  // namespace

std::string ListTrcMarkers(std::string_view header, std::vector<TrcMarkerName>& markers) {
  orvane::TRCDocument document;
  MarkerListener listener(markers);
  return document.ReadBytes(header, false, &listener);
}

}  // namespace cli
