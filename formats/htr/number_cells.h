#pragma once

#include <cstddef>
#include <string_view>

#include "formats/math/vector.h"
#include "formats/text/number_faults.h"
#include "formats/text/numbers.h"
#include "formats/text/tokens.h"

// The number columns of a data line, taken from left to right. Belongs to the reader, which spends
// most of its time here: a cell that is one number and nothing else is read without being looked
// for first.
namespace orvane {

class NumberCells {
 public:
  explicit NumberCells(std::string_view line) : rest_(line) {}

  // The number that the next cell starts with; 0 for a missing or malformed cell.
  double Take() {
    rest_ = SkipSeparators(rest_);
    const char* const first = rest_.data();
    const char* const last = first + rest_.size();
    const LeadingDouble number = ReadDouble(first, last);
    const bool fills_cell = number.end != first && (number.end == last || IsSeparator(*number.end));
    if (!fills_cell) return TakeOdd();
    is_ordinary_ = is_ordinary_ && FitsSinglePrecision(number.value);
    rest_.remove_prefix(static_cast<std::size_t>(number.end - first));
    return number.value;
  }

  // Whether all that Take took were numbers and nothing else, each finite in single precision, and
  // nothing but separators is left. False says nothing.
  [[nodiscard]] bool AreOrdinary() const { return is_ordinary_ && SkipSeparators(rest_).empty(); }

  // The next cell as it stands; empty when there is none.
  [[nodiscard]] std::string_view TakeWord() { return TakeFirstToken(rest_); }

  // The next three cells, each times `factor`.
  Vector3 TakeVector(double factor) {
    const double x = Take() * factor;
    const double y = Take() * factor;
    const double z = Take() * factor;
    return Vector3(x, y, z);
  }

 private:
  double TakeOdd() {
    is_ordinary_ = false;
    return ParseDouble(TakeFirstToken(rest_));
  }

  std::string_view rest_;
  bool is_ordinary_ = true;
};

}  // namespace orvane
