#pragma once

#include <cstddef>
#include <span>

// Real numbers as the columns of a motion file show them, for writers that spend most of their time
// on them. Nothing here depends on the locale.
namespace orvane {

// The most characters that a number takes: a sign, 309 digits, the point and six decimals.
inline constexpr std::size_t kLongestSixDecimals = 317;

// Writes `value` as "%.6f" prints it, correctly rounded, a tie to the even digit; -0.000000 for a
// negative number too small to show, and inf or nan, with their signs, for what is no number. The
// characters go to `first` and behind, where there must be room for kLongestSixDecimals, and are
// not ended by a NUL. Returns the place behind the last one; a few behind that may be overwritten.
//
// Below a million, all but the numbers on or next to a tie take a short way.
char* WriteSixDecimals(double value, char* first);

// The most characters that a column takes.
inline constexpr std::size_t kLongestColumn = 1 + kLongestSixDecimals;

// Writes each of `values` so, behind a tab. Room for kLongestColumn is needed for each.
char* WriteColumns(std::span<const double> values, char* first);

}  // namespace orvane
