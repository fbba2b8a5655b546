#include "decimal/decimal.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <system_error>

namespace decimal {
namespace {

constexpr bool IsDigit(char character) { return character >= '0' && character <= '9'; }

// True when the number, known to be out of range, is too large rather than too small: the library
// does not tell. There is no sign at its start.
bool IsHuge(const char* first, const char* last) {
  std::int64_t magnitude = 0;  // decimal position of the first digit that is not 0
  bool in_fraction = false;
  bool found = false;
  const char* cursor = first;
  for (; cursor != last && (IsDigit(*cursor) || *cursor == '.'); ++cursor) {
    if (*cursor == '.') {
      in_fraction = true;
      continue;
    }
    found = found || *cursor != '0';
    if (found && !in_fraction) ++magnitude;
    if (!found && in_fraction) --magnitude;
  }
  if (cursor == last) return magnitude > 0;
  ++cursor;  // the exponent's letter
  const bool negative = cursor != last && *cursor == '-';
  if (negative || (cursor != last && *cursor == '+')) ++cursor;
  std::int64_t exponent = 0;
  const std::errc error = std::from_chars(cursor, last, exponent).ec;
  if (error == std::errc::result_out_of_range) return !negative;
  return negative ? magnitude > exponent : exponent > -magnitude;  // a sum could overflow
}

}  // namespace

template <typename Real>
Reading<Real> Read(const char* first, const char* last) {
  Real value = 0;
  const auto [end, error] = std::from_chars(first, last, value);
  if (error != std::errc::result_out_of_range) return {value, end, std::isfinite(value)};
  const bool negative = *first == '-';
  value =
      IsHuge(negative ? first + 1 : first, end) ? std::numeric_limits<Real>::infinity() : Real{};
  return {negative ? -value : value, end, false};
}

char* WriteFixed(double value, int decimals, char* first) {
  char* const last = first + LongestFixed(decimals);
  return std::to_chars(first, last, value, std::chars_format::fixed, decimals).ptr;
}

template <typename Real>
char* WriteShortest(Real value, char* first) {
  return std::to_chars(first, first + kLongestShortest, value).ptr;
}

template Reading<float> Read(const char*, const char*);
template Reading<double> Read(const char*, const char*);
template char* WriteShortest(float, char*);
template char* WriteShortest(double, char*);

}  // namespace decimal
