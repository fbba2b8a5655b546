#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "formats/htr/read_observer.h"
#include "inspect/check/decimal_commas.h"
#include "inspect/check/findings.h"
#include "inspect/check/htr_parts.h"
#include "inspect/check/kept_cell.h"
#include "inspect/check/next_number.h"

// Watches the reader of HTR files: turns what it meets into findings, and keeps where the parts of
// the file stand. Every finding has the line and the column of the reader's cell, counted from 1.
// Nothing fails but for want of memory.

namespace orvane::htr {

class HtrFindingsObserver final : public HtrReadObserver {
 public:
  // `parts`, which is empty, and `findings` must outlive the observer.
  HtrFindingsObserver(HtrParts& parts, FindingList& findings)
      : parts_(parts), findings_(findings) {}

  void OnOddity(HtrOddity oddity, const HtrCell& cell, std::string_view field) override;
  void OnSection(HtrSection section, const HtrCell& name) override;
  void OnHeaderField(const HtrCell& keyword, const HtrCell& value) override;
  void OnSegment(const HtrCell& name, const HtrCell& parent) override;
  void OnBasePosition(const HtrCell& name) override;
  void OnFrame(const HtrCell& number) override;
  void OnEnd(const HtrCell& end) override { parts_.end = PlaceOf(end); }

  // Ends the last section, and adds what is told once of the whole file, when reading has ended.
  void Finish();

  // Whether the reader has refused the file, and whether it did so before the end.
  [[nodiscard]] bool HasRefused() const { return has_refused_; }
  [[nodiscard]] bool WasStopped() const { return was_stopped_; }

 private:
  // Whether the current frame is behind those that the header announces, and what is odd is in it.
  [[nodiscard]] bool IsBehindFrames() const;
  [[nodiscard]] bool IsBehindFrames(HtrOddity oddity) const;
  // Whether the oddity is told of, now or before, as one of the cells of its line.
  void Remember(HtrOddity oddity, const HtrCell& cell);
  [[nodiscard]] bool IsToldOfItsLine(HtrOddity oddity, const HtrCell& cell, std::string_view field);
  [[nodiscard]] bool AddEmptyCell(const HtrCell& missing);
  void AddKeyword(const HtrCell& keyword);
  void AddRateCut(const HtrCell& rate);
  void LeaveSection();
  void AddSkippedSection(const KeptCell& name);
  void CheckHeaderPlace(const HtrCell& name);
  void EnterMotion(const HtrCell& name);
  void CheckRate(const HtrCell& value);
  void CheckGravity(const HtrCell& value);
  void CheckName(const HtrCell& name);
  void CheckFrameNumber(const HtrCell& number);

  HtrParts& parts_;
  FindingList& findings_;

  bool has_refused_ = false;
  bool was_stopped_ = false;
  bool linked_again_ = false;
  std::string byte_order_mark_;
  std::size_t line_of_empty_cell_ = 0;       // the last one that was told of
  std::optional<KeptCell> skipped_section_;  // the current section, when it names no segment
  std::size_t skipped_lines_ = 0;
  SegmentLines* segment_ = nullptr;  // of the current section, when that is one of motion
  std::size_t announced_frames_ = 0;
  std::optional<NextNumber> next_frame_number_;
  std::optional<std::int64_t> start_frame_;
  DecimalCommas commas_;
};

}  // namespace orvane::htr
