#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "cli/findings.h"
#include "cli/trc_parts.h"
#include "formats/trc/document.h"
#include "formats/trc/read_observer.h"

// Watches the reader of TRC files: turns its oddities into findings, and keeps where the parts of
// the file stand.

namespace cli::trc {

class Watcher : public orvane::TRCReadObserver {
 public:
  // `document` is what is read into. All three must outlive the watcher.
  Watcher(const orvane::TRCDocument& document, Parts& parts, FindingList& findings)
      : document_(document), parts_(parts), findings_(findings) {}

  void OnOddity(orvane::TRCOddity oddity, orvane::TRCPlace place, std::string_view text) override;
  void OnHeaderValue(orvane::TRCHeaderValue value, orvane::TRCPlace place,
                     std::string_view text) override;
  void OnMarker(orvane::TRCPlace place, std::string_view name) override;
  void OnFrame(orvane::TRCPlace place, std::string_view number) override;

  // Whether the reader has refused the file.
  bool HasRefused() const { return has_refused_; }

 private:
  Finding* Add(const FindingRule& rule, orvane::TRCPlace place) {
    return findings_.Add(rule, place.line, place.column);
  }

  void AddFileType(orvane::TRCPlace path_type);
  // Whether the first line has no tab, by the place of what is missing then.
  bool LacksTabs(orvane::TRCPlace place) const;
  bool AddPlain(orvane::TRCOddity oddity, orvane::TRCPlace place, std::string_view text);
  void AddNumber(orvane::TRCOddity oddity, orvane::TRCPlace place, std::string_view cell);
  void AddRateCut(orvane::TRCPlace place, std::string_view rate);
  void AddCameraRate(orvane::TRCPlace place, std::string_view rate);
  void AddRefusal(orvane::TRCPlace place, std::string_view coordinates);
  void AddRepeatedName(orvane::TRCPlace place, std::string_view name);
  void AddMarkerCount(orvane::TRCPlace place, std::string_view announced);
  void AddShortFrame(orvane::TRCPlace place);
  void AddFrameNumber(orvane::TRCPlace place, std::string_view number);
  void CheckRate(orvane::TRCPlace place, std::string_view rate);
  void CheckFirstFrame(orvane::TRCPlace place, std::string_view number);

  const orvane::TRCDocument& document_;
  Parts& parts_;
  FindingList& findings_;

  bool has_refused_ = false;
  bool spare_returns_told_ = false;
  std::string_view file_type_;                                // when it is not the usual one
  std::unordered_map<std::string_view, std::size_t> fields_;  // of markers, by name
  std::size_t frames_ = 0;
};

}  // namespace cli::trc
