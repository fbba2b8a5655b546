#pragma once

#include <cmath>
#include <cstddef>
#include <limits>
#include <string_view>

// What reading numbers lets pass, for those who watch a reader.
namespace orvane {

enum class NumberFault {
  kNone,
  kMissing,      // nothing there
  kUnreadable,   // more or other than one number
  kOutOfBounds,  // a whole number that needs more than 32 bits, or a real one that is infinite in
                 // single precision
  kCut,          // a fraction where a whole number is wanted
};

// Whether `cell` is no more than a minus, or nothing, and up to 30 digits with at most one point
// among them: the form of nearly all numbers in files, which has no fault. False says nothing.
[[nodiscard]] inline bool IsPlainDecimal(std::string_view cell) {
  constexpr std::size_t kMostCharacters = 31;
  if (cell.size() > kMostCharacters) return false;
  if (cell.starts_with('-')) cell.remove_prefix(1);
  std::size_t digits = 0;
  std::size_t points = 0;
  for (const char character : cell) {
    digits += character >= '0' && character <= '9' ? 1U : 0U;
    points += character == '.' ? 1U : 0U;
  }
  return digits > 0 && points <= 1 && digits + points == cell.size();
}

// Whether `value` is finite in single precision, which lengths have in a scene.
[[nodiscard]] inline bool FitsSinglePrecision(double value) {
  return std::abs(value) <= double{std::numeric_limits<float>::max()};
}

// `cell` is what should be one real number, without anything around it.
[[nodiscard]] NumberFault FaultOfNumber(std::string_view cell);

// The same for a whole number of 32 bits.
[[nodiscard]] NumberFault FaultOfWholeNumber(std::string_view cell);

}  // namespace orvane
