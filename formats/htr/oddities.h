#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "formats/htr/read_observer.h"
#include "formats/text/lines.h"
#include "formats/text/number_faults.h"
#include "formats/text/watched_line.h"

// The reader's side of the observer: knows the current line, and does nothing without an observer.
namespace orvane {

class HtrOddities {
 public:
  explicit HtrOddities(HtrReadObserver* observer) : observer_(observer) {}

  // Null when nobody watches.
  HtrReadObserver* Observer() const { return observer_; }

  // `line` is the one that all texts below are part of.
  void StartLine(const Line& line) {
    if (observer_ != nullptr) LookAtLine(line);
  }

  // The same of a line that is not looked at.
  void PassLine(const Line& line) {
    if (observer_ != nullptr) line_.Set(line);
  }

  // `text` with its place; without one when nobody watches.
  HtrCell CellOf(std::string_view text) const;

  void Report(HtrOddity oddity, std::string_view text, std::string_view field = {}) const {
    if (observer_ != nullptr) observer_->OnOddity(oddity, CellOf(text), field);
  }

  // As above, of a line that was read before.
  void Report(HtrOddity oddity, const HtrCell& cell) const {
    if (observer_ != nullptr) observer_->OnOddity(oddity, cell, {});
  }

  // Reports `oddity` with `text` when `is_odd`.
  void ReportIf(bool is_odd, HtrOddity oddity, std::string_view text,
                std::string_view field = {}) const {
    if (is_odd) Report(oddity, text, field);
  }

  // The end of the current line.
  [[nodiscard]] std::string_view EndOfLine() const {
    return line_.Text().substr(line_.Text().size());
  }

  // Reports what `text` holds besides separators, if anything.
  void ReportWords(HtrOddity oddity, std::string_view text) const;

  // Reports a cell that is missing, or that is more or other than one number.
  void CheckNumber(std::string_view cell, std::string_view field) const;
  // The same for one that is to be a whole number.
  void CheckWholeNumber(std::string_view cell, std::string_view field) const;
  // Takes the cells of `fields` off `line`, each a number, and reports what is left.
  void CheckNumbers(std::string_view line, std::span<const std::string_view> fields) const;

 private:
  void LookAtLine(const Line& line);
  void LookAtBytes() const;
  void ReportFault(NumberFault fault, std::string_view cell, std::string_view field) const;

  HtrReadObserver* observer_;
  WatchedLine line_;
  bool long_line_told_ = false;
};

}  // namespace orvane
