#pragma once

#include <cstddef>
#include <string_view>

#include "formats/text/number_faults.h"
#include "formats/text/watched_line.h"
#include "formats/trc/read_observer.h"

// The reader's side of the observer: knows the current line, and does nothing without an observer.
namespace orvane {

class TRCOddities {
 public:
  explicit TRCOddities(TRCReadObserver* observer) : observer_(observer) {}

  // Whether anybody wants to know of frames.
  [[nodiscard]] bool AreOfFramesWanted() const {
    return observer_ != nullptr && observer_->WatchesFrames();
  }

  // `line` is the one that all texts below are part of, unless another is named.
  void StartLine(const Line& line) {
    if (observer_ != nullptr) line_.Set(line);
  }

  // Reports what is odd about the bytes of the line.
  void LookAtLine() {
    if (observer_ != nullptr) LookAtBytes();
  }
  // The same of a line that is thrown away: only that it is a piece of a longer one.
  void LookAtLength() {
    if (observer_ != nullptr) ReportLongLine();
  }

  // Reports `oddity` with `text`, which is field `field` of the line, counted from 1, or no field
  // for 0.
  void Report(TRCOddity oddity, std::size_t field, std::string_view text) const {
    if (observer_ != nullptr) observer_->OnOddity(oddity, PlaceOf(field, text), text);
  }
  // The same, when `is_odd`.
  void ReportIf(bool is_odd, TRCOddity oddity, std::size_t field, std::string_view text) const {
    if (is_odd) Report(oddity, field, text);
  }
  // Reports `oddity` of the line as a whole, with any text.
  void ReportLine(TRCOddity oddity, std::string_view text) const {
    if (observer_ != nullptr) observer_->OnOddity(oddity, PlaceOf(0, line_.Text()), text);
  }
  // Reports `oddity` of what was read at `place` before, with any text.
  void ReportAt(const TRCPlace& place, TRCOddity oddity, std::string_view text) const {
    if (observer_ != nullptr) observer_->OnOddity(oddity, place, text);
  }

  // Where `text` stands; nowhere when nobody watches.
  TRCPlace PlaceOf(std::size_t field, std::string_view text) const {
    if (observer_ == nullptr) return {};
    return {line_.Number(), line_.ColumnOf(text), field};
  }

  // Reports a field that is missing, or that is more or other than one number and blanks.
  void CheckNumber(std::size_t field, std::string_view text) const {
    if (observer_ != nullptr && !IsPlainDecimal(text)) ReportFault(FaultOfNumber, field, text);
  }
  // The same for one that is to be a whole number.
  void CheckWholeNumber(std::size_t field, std::string_view text) const {
    if (observer_ != nullptr) ReportFault(FaultOfWholeNumber, field, text);
  }
  // The same for a rate, which is to be above 0 as well.
  void CheckRate(std::size_t field, std::string_view text) const {
    if (observer_ != nullptr) ReportFaultsOfRate(field, text);
  }

  void TellHeaderValue(TRCHeaderValue value, std::size_t field, std::string_view text) const {
    if (observer_ != nullptr) observer_->OnHeaderValue(value, PlaceOf(field, text), text);
  }
  void TellMarker(std::size_t field, std::string_view name) const {
    if (observer_ != nullptr) observer_->OnMarker(PlaceOf(field, name), name);
  }
  // `line` need not be the current one yet.
  void TellHeaderLine(std::size_t number, const Line& line) const {
    if (observer_ != nullptr) observer_->OnHeaderLine(number, line);
  }
  void TellLineThrownAway(const Line& line) const {
    if (observer_ != nullptr) observer_->OnLineThrownAway(line);
  }
  void TellFrame(const TRCRow& row) const {
    if (observer_ != nullptr) observer_->OnFrame(PlaceOf(1, row.number), row);
  }
  void TellEnd(const LinePlace& end) const {
    if (observer_ != nullptr) observer_->OnEnd({end.line, end.column, 0});
  }

 private:
  void LookAtBytes();
  void ReportLongLine();
  void ReportFault(NumberFault (*fault_of)(std::string_view), std::size_t field,
                   std::string_view text) const;
  void ReportFaultsOfRate(std::size_t field, std::string_view text) const;

  TRCReadObserver* observer_;
  WatchedLine line_;
  bool long_line_told_ = false;
};

}  // namespace orvane
