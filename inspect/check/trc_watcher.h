#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "formats/trc/document.h"
#include "formats/trc/read_observer.h"
#include "inspect/check/findings.h"
#include "inspect/check/trc_parts.h"

// Watches the reader of TRC files: turns its oddities into findings, and keeps where the parts of
// the file stand.

namespace orvane::trc {

class TrcWatcher : public TRCReadObserver {
 public:
  // `document` is what is read into. All three must outlive the watcher.
  TrcWatcher(const TRCDocument& document, TrcParts& parts, FindingList& findings)
      : document_(document), parts_(parts), findings_(findings) {}

  void OnOddity(TRCOddity oddity, TRCPlace place, std::string_view text) override;
  void OnHeaderValue(TRCHeaderValue value, TRCPlace place, std::string_view text) override;
  void OnMarker(TRCPlace place, std::string_view name) override;
  void OnFrame(TRCPlace place, std::string_view number) override;

  // Whether the reader has refused the file.
  bool HasRefused() const { return has_refused_; }

 private:
  Finding* Add(const FindingRule& rule, TRCPlace place) {
    return findings_.Add(rule, place.line, place.column);
  }

  void AddFileType(TRCPlace path_type);
  // Whether the first line has no tab, by the place of what is missing then.
  bool LacksTabs(TRCPlace place) const;
  bool AddPlain(TRCOddity oddity, TRCPlace place, std::string_view text);
  void AddNumber(TRCOddity oddity, TRCPlace place, std::string_view cell);
  void AddRateCut(TRCPlace place, std::string_view rate);
  void AddCameraRate(TRCPlace place, std::string_view rate);
  void AddRefusal(TRCPlace place, std::string_view coordinates);
  void AddRepeatedName(TRCPlace place, std::string_view name);
  void AddMarkerCount(TRCPlace place, std::string_view announced);
  void AddShortFrame(TRCPlace place);
  void AddFrameNumber(TRCPlace place, std::string_view number);
  void CheckRate(TRCPlace place, std::string_view rate);
  void CheckFirstFrame(TRCPlace place, std::string_view number);

  const TRCDocument& document_;
  TrcParts& parts_;
  FindingList& findings_;

  bool has_refused_ = false;
  bool spare_returns_told_ = false;
  std::string_view file_type_;                                // when it is not the usual one
  std::unordered_map<std::string_view, std::size_t> fields_;  // of markers, by name
  std::size_t frames_ = 0;
};

}  // namespace orvane::trc
