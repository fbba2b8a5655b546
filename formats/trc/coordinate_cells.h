#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

#include "formats/text/number_faults.h"
#include "formats/text/numbers.h"

// The coordinates on one line of a marker file, taken from left to right. Belongs to the reader,
// which spends most of its time here: a field that is one number and nothing else is read without
// its end being looked for first.
namespace orvane {

class TRCCoordinateCells {
 public:
  // `text` is a line without its line break.
  explicit TRCCoordinateCells(std::string_view text)
      : cursor_(text.data()), end_(text.data() + text.size()) {}

  // Whether nothing of the line is left: all fields from here on are empty.
  [[nodiscard]] bool AtEnd() const { return cursor_ == end_; }
  // Whether the current field is empty.
  [[nodiscard]] bool IsEmpty() const { return cursor_ == end_ || *cursor_ == '\t'; }

  // Goes on behind the next tab; when there is none, nothing is left.
  void Drop() {
    const char* const tab = FindTab();
    cursor_ = tab == end_ ? end_ : tab + 1;
  }

  // The number that the current field starts with, 0 for anything else; then drops the field.
  double Take() {
    const LeadingDouble number = ReadDouble(cursor_, end_);
    const bool fills_field = number.end != cursor_ && (number.end == end_ || *number.end == '\t');
    if (!fills_field) return TakeOdd();
    is_ordinary_ = is_ordinary_ && FitsSinglePrecision(number.value);
    cursor_ = number.end == end_ ? end_ : number.end + 1;
    return number.value;
  }

  // Drops the three fields of a sample whose first one is empty.
  void DropSample() {
    const bool is_empty = Left() >= 2 && cursor_[0] == '\t' && cursor_[1] == '\t' &&
                          (Left() == 2 || cursor_[2] == '\t');
    is_ordinary_ = is_ordinary_ && is_empty;
    for (int coordinate = 0; coordinate < 3; ++coordinate) Drop();
  }

  // Whether what was taken were numbers and nothing else, each finite in single precision, and what
  // was dropped as samples were three empty fields each. False says nothing.
  [[nodiscard]] bool IsOrdinary() const { return is_ordinary_; }

 private:
  const char* FindTab() const {
    const void* tab = AtEnd() ? nullptr : std::memchr(cursor_, '\t', Left());
    return tab == nullptr ? end_ : static_cast<const char*>(tab);
  }

  std::size_t Left() const { return static_cast<std::size_t>(end_ - cursor_); }

  double TakeOdd() {
    const std::string_view field(cursor_, static_cast<std::size_t>(FindTab() - cursor_));
    is_ordinary_ = false;
    Drop();
    return ParseDouble(field);
  }

  const char* cursor_;
  const char* end_;
  bool is_ordinary_ = true;
};

}  // namespace orvane
