#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "formats/trc/document.h"
#include "formats/trc/read_observer.h"
#include "inspect/check/decimal_commas.h"
#include "inspect/check/findings.h"
#include "inspect/check/trc_blank_end.h"
#include "inspect/check/trc_columns.h"
#include "inspect/check/trc_parts.h"
#include "inspect/check/trc_samples.h"
#include "inspect/check/trc_times.h"
#include "inspect/check/trc_widths.h"

// Watches the reader of TRC files: turns what it meets into findings, and keeps where the parts of
// the file stand. Every finding has the reader's line and column, counted from 1. Nothing fails but
// for want of memory.

namespace orvane::trc {

class TrcFindingsObserver final : public TRCReadObserver {
 public:
  // `document` is what is read into, with its samples or without them; `parts` and `samples` are
  // empty. All must outlive the observer.
  TrcFindingsObserver(const TRCDocument& document, TrcParts& parts, TrcSamples& samples,
                      FindingList& findings)
      : document_(document), parts_(parts), samples_(samples), findings_(findings) {}

  void OnOddity(TRCOddity oddity, TRCPlace place, std::string_view text) override;
  void OnHeaderValue(TRCHeaderValue value, TRCPlace place, std::string_view text) override;
  void OnMarker(TRCPlace place, std::string_view name) override;
  void OnHeaderLine(std::size_t number, const Line& line) override;
  void OnLineThrownAway(const Line& line) override;
  void OnFrame(TRCPlace place, const TRCRow& row) override;
  void OnEnd(TRCPlace place) override { parts_.end = place; }

  // Adds what depends on the whole file, or is told once of it, when reading has ended.
  void Finish();

  // Whether the reader has refused the file.
  [[nodiscard]] bool HasRefused() const { return has_refused_; }

 private:
  void AddRefusal(TRCPlace place, std::string_view coordinates);
  void AddUnknownUnit(TRCPlace place, std::string_view unit);
  void AddRateCut(TRCPlace place, std::string_view rate);
  void CheckFileType(TRCPlace path_type);
  void CheckName(TRCPlace place, std::string_view name);
  void CheckRate(TRCPlace place, std::string_view rate);
  void CheckCameraRate(TRCPlace place, std::string_view rate);

  // Takes a line that stands where frames do, whether it is one or not.
  void TakeRow(const Line& line, const TRCRowWidth& width);
  // The same of any line that is no frame.
  void TakeOtherLine(const Line& line);
  void CountFrame(TRCPlace place);
  void CheckTime(TRCPlace place, const TRCRow& row);

  // Whether the frame may stand behind all that are announced, where only blank lines follow.
  [[nodiscard]] bool MayBeBehindFrames(const TRCRow& row) const;
  void LeaveLongLine();
  // Keeps what is told from now on apart, and decides on it.
  void Hold(std::size_t line);
  void TakeHeld();
  void DropHeld();
  // What a finding there is added to at present.
  FindingList& FindingsAt(TRCPlace place);

  // Adds what was told of frames, but for what follows from their columns.
  void AddFindingsOfFrames();

  // Whether the oddity there follows from the layout of the file, which is told.
  [[nodiscard]] bool FollowsFromLayout(TRCOddity oddity, TRCPlace place) const;
  // Whether the first line has no tab, by the place of what is missing then.
  [[nodiscard]] bool LacksTabs(TRCPlace place) const;

  const TRCDocument& document_;
  TrcParts& parts_;
  TrcSamples& samples_;
  FindingList& findings_;
  FindingList in_long_line_;  // of the header, until it is read: what is found there
  FindingList in_frames_;     // the same, until all are read

  bool has_refused_ = false;
  bool has_spare_returns_ = false;
  std::string file_type_;  // when it is not the usual one
  TrcColumns columns_;
  std::size_t long_line_ = 0;  // of the header; 0 when the current one is not long
  std::size_t lines_ = 0;      // also those that are thrown away
  WidthCounts widths_;
  BlankEnd blank_end_;
  std::size_t frames_ = 0;
  std::size_t first_line_behind_ = 0;  // the frames that are announced; 0 for none
  DecimalCommas commas_;
  TimeColumn times_;

  // What is told of frames that may be blank lines at the end, and what was so before the first.
  struct Held {
    std::size_t line = 0;
    std::size_t frames = 0;
    std::string last_number;
    DecimalCommas commas;
    TimeColumn times;
    FindingList findings;
  };
  std::optional<Held> held_;
};

}  // namespace orvane::trc
