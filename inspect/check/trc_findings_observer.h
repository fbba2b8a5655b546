#pragma once

#include <cstddef>
#include <string_view>
#include <unordered_map>

#include "formats/trc/document.h"
#include "formats/trc/read_observer.h"
#include "inspect/check/decimal_commas.h"
#include "inspect/check/findings.h"
#include "inspect/check/trc_layout.h"
#include "inspect/check/trc_parts.h"
#include "inspect/check/trc_times.h"
#include "inspect/check/trc_widths.h"

// Watches the reader of TRC files: turns what it meets into findings, and keeps where the parts of
// the file stand. Every finding has the reader's line and column, counted from 1. Nothing fails but
// for want of memory.

namespace orvane::trc {

class TrcFindingsObserver final : public TRCReadObserver {
 public:
  // `document` is what is read into, `layout` and `widths` are those of the bytes, and `parts` is
  // empty. All must outlive the observer, and so must the bytes that are read.
  TrcFindingsObserver(const TRCDocument& document, const TrcLayout& layout, const TrcWidths& widths,
                      TrcParts& parts, FindingList& findings)
      : document_(document), layout_(layout), widths_(widths), parts_(parts), findings_(findings) {}

  void OnOddity(TRCOddity oddity, TRCPlace place, std::string_view text) override;
  void OnHeaderValue(TRCHeaderValue value, TRCPlace place, std::string_view text) override;
  void OnMarker(TRCPlace place, std::string_view name) override;
  void OnFrame(TRCPlace place, const TRCRow& row) override;

  // Adds what is told once of the whole file, when reading has ended.
  void Finish();

  // Whether the reader has refused the file.
  [[nodiscard]] bool HasRefused() const { return has_refused_; }

 private:
  void AddRefusal(TRCPlace place, std::string_view coordinates);
  void AddUnknownUnit(TRCPlace place, std::string_view unit);
  void AddRepeatedName(TRCPlace place, std::string_view name);
  void AddRateCut(TRCPlace place, std::string_view rate);
  void CheckFileType(TRCPlace path_type);
  void CheckName(TRCPlace place, std::string_view name);
  void CheckRate(TRCPlace place, std::string_view rate);
  void CheckCameraRate(TRCPlace place, std::string_view rate);

  // Whether the oddity there follows from the layout of the file, which is told.
  [[nodiscard]] bool FollowsFromLayout(TRCOddity oddity, TRCPlace place) const;
  // The same of rows that do not have the columns which the names ask for.
  [[nodiscard]] static bool FollowsFromMisfit(TRCOddity oddity);
  // Whether what is there is a line at the end, behind all frames that are announced.
  [[nodiscard]] bool StandsBehindFrames(TRCPlace place) const;
  // Whether the first line has no tab, by the place of what is missing then.
  [[nodiscard]] bool LacksTabs(TRCPlace place) const;

  const TRCDocument& document_;
  const TrcLayout& layout_;
  const TrcWidths& widths_;
  TrcParts& parts_;
  FindingList& findings_;

  bool has_refused_ = false;
  bool has_spare_returns_ = false;
  std::string_view file_type_;                                 // when it is not the usual one
  std::unordered_map<std::string_view, std::size_t> columns_;  // of markers, by name
  std::size_t frames_ = 0;
  DecimalCommas commas_;
  TimeColumn times_;
};

}  // namespace orvane::trc
