#include "inspect/check/trc_markers.h"

#include "formats/trc/document.h"

namespace orvane {
namespace {

class MarkerListener final : public TRCReadObserver {
 public:
  explicit MarkerListener(std::vector<TrcMarkerName>& markers) : markers_(markers) {}

  void OnOddity(TRCOddity /*oddity*/, TRCPlace /*place*/, std::string_view /*text*/) override {}
  void OnMarker(TRCPlace place, std::string_view name) override {
    markers_.push_back({std::string(name), place});
  }
  bool WatchesFrames() const override { return false; }

 private:
  std::vector<TrcMarkerName>& markers_;
};

}  // namespace

std::string ListTrcMarkers(std::string_view header, std::vector<TrcMarkerName>& markers) {
  TRCDocument document;
  MarkerListener listener(markers);
  return document.ReadBytes(header, false, &listener);
}

}  // namespace orvane
