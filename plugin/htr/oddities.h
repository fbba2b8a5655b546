#pragma once

#include <cstddef>
#include <string_view>

#include "plugin/htr/read_observer.h"
#include "plugin/text/numbers.h"

// The reader's side of the observer: knows the current line, and does nothing without an observer.
namespace orvane {

class HtrOddities {
 public:
  explicit HtrOddities(HtrReadObserver* observer) : observer_(observer) {}

  void SetLine(std::size_t line) { line_ = line; }

  void Report(HtrOddity oddity, std::string_view text) const {
    if (observer_ != nullptr) observer_->OnOddity(oddity, line_, text);
  }

  // Reports `oddity` with `text` when `is_odd`.
  void ReportIf(bool is_odd, HtrOddity oddity, std::string_view text) const {
    if (is_odd) Report(oddity, text);
  }

  // Reports a cell that is missing, or that is more or other than one number.
  void CheckNumber(std::string_view cell) const {
    if (observer_ == nullptr) return;
    if (cell.empty()) return Report(HtrOddity::kMissingNumber, cell);
    const char* const end = cell.data() + cell.size();
    ReportIf(ReadDouble(cell.data(), end).end != end, HtrOddity::kUnreadableNumber, cell);
  }

 private:
  HtrReadObserver* observer_;
  std::size_t line_ = 0;
};

}  // namespace orvane
