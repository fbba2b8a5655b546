#pragma once

#include <cstddef>

// Real numbers as decimal text, by the rules of the standard's <charconv>, on every system: not
// every C++ library has its functions for real numbers. Nothing here depends on the locale. Where
// it says Real, there are bodies for float and double.
//
// decimal/standard has the bodies that call the C++ library, decimal/portable those that do
// without.
namespace decimal {

template <typename Real>
struct Reading {
  Real value = 0;             // infinite or 0, with the sign written, when the number does not fit
  const char* end = nullptr;  // behind the last character used; the start when there is no number
  bool fits = true;           // false when it is not finite, or too small to be other than 0
};

// The number that the characters from `first` up to `last` start with, correctly rounded: a minus
// or no sign, digits with an optional point among, before or behind them, an optional exponent; or
// one of the words for infinity and not-a-number.
template <typename Real>
Reading<Real> Read(const char* first, const char* last);

// The most characters that WriteFixed takes: a sign, 309 digits, the point and the decimals.
constexpr std::size_t LongestFixed(int decimals) {
  return std::size_t{311} + static_cast<std::size_t>(decimals);
}

// The most characters that WriteShortest takes: a sign, 17 digits, the point, an exponent.
inline constexpr std::size_t kLongestShortest = 24;

// Writes `value` as "%.nf" prints it with that many `decimals`, at least 0, correctly rounded and a
// tie to the even digit. The characters go to `first` and behind, where there must be room for
// LongestFixed(decimals), and are not ended by a NUL. Returns the place behind the last one.
char* WriteFixed(double value, int decimals, char* first);

// Writes `value` with the fewest characters that read back as the same value of its type: in fixed
// notation, or where that is longer with an exponent of at least two digits. Room, end and result
// are as above, with kLongestShortest.
template <typename Real>
char* WriteShortest(Real value, char* first);

}  // namespace decimal
