#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "plugin/text/numbers.h"
#include "plugin/text/tokens.h"
#include "plugin/trc/read_observer.h"

// The reader's side of the observer: knows the current line, and does nothing without an observer.
namespace orvane {

class TRCOddities {
 public:
  explicit TRCOddities(TRCReadObserver* observer) : observer_(observer) {}

  // Whether anybody wants to know of frames.
  bool AreOfFramesWanted() const { return observer_ != nullptr && observer_->WatchesFrames(); }

  void SetLine(std::size_t line) { line_ = line; }

  // `column` counts from 1; 0 stands for the whole line.
  void Report(TRCOddity oddity, std::size_t column, std::string_view text) const {
    if (observer_ != nullptr) observer_->OnOddity(oddity, {line_, column}, text);
  }

  // Reports `oddity` when `is_odd`.
  void ReportIf(bool is_odd, TRCOddity oddity, std::size_t column, std::string_view text) const {
    if (is_odd) Report(oddity, column, text);
  }

  // Reports a field that is missing, or that is more or other than one number and blanks.
  void CheckNumber(std::size_t column, std::string_view field) const {
    if (observer_ == nullptr) return;
    const std::string_view cell = TrimTrailingSeparators(SkipSeparators(field));
    if (cell.empty()) return Report(TRCOddity::kMissingNumber, column, cell);
    const char* const end = cell.data() + cell.size();
    ReportIf(ReadDouble(cell.data(), end).end != end, TRCOddity::kUnreadableNumber, column, field);
  }

 private:
  TRCReadObserver* observer_;
  std::size_t line_ = 0;
};

}  // namespace orvane
