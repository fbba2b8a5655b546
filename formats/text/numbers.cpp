#include "formats/text/numbers.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <limits>

#include "decimal/decimal.h"

namespace orvane {
namespace {

constexpr bool IsDigit(char character) { return character >= '0' && character <= '9'; }

constexpr bool IsBlank(char character) {
  return character == ' ' || (character >= '\t' && character <= '\r');
}

std::string_view SkipBlanks(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  return text;
}

// Moves `first` behind a sign, if one stands there; returns true when it was a minus.
bool TakeSign(const char*& first, const char* last) {
  if (first == last || (*first != '-' && *first != '+')) return false;
  return *first++ == '-';
}

bool StartsNumber(const char* first, const char* last) {
  if (first != last && *first == '.') ++first;
  return first != last && IsDigit(*first);
}

// The powers of ten that a double holds exactly.
constexpr std::array<double, 23> kPowersOfTen = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                 1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr std::uint64_t kLargestExactInteger = std::uint64_t{1} << 53;
constexpr std::ptrdiff_t kMostDigits = 19;  // of which any number fits 64 bits

// The short way (Clinger, "How to read floating point numbers accurately", 1990): digits and power
// of ten are both exact doubles, so that one division rounds correctly. Returns an end of null when
// the number is not of that kind.
LeadingDouble ReadPlainDecimal(const char* first, const char* last) {
  std::uint64_t digits = 0;
  const char* cursor = first;
  for (; cursor != last && IsDigit(*cursor); ++cursor) {
    digits = digits * 10 + static_cast<std::uint64_t>(*cursor - '0');
  }
  std::ptrdiff_t length = cursor - first;
  std::size_t decimals = 0;
  if (cursor != last && *cursor == '.') {
    const char* fraction = ++cursor;
    for (; cursor != last && IsDigit(*cursor); ++cursor) {
      digits = digits * 10 + static_cast<std::uint64_t>(*cursor - '0');
    }
    decimals = static_cast<std::size_t>(cursor - fraction);
    length += cursor - fraction;
  }
  const bool has_exponent = cursor != last && (*cursor == 'e' || *cursor == 'E');
  if (length > kMostDigits || digits > kLargestExactInteger || has_exponent) return {};
  return {static_cast<double>(digits) / kPowersOfTen[decimals], cursor};
}

LeadingDouble ReadAnyDecimal(const char* first, const char* last) {
  const auto number = decimal::Read<double>(first, last);
  return {number.value, number.end};
}

constexpr int kMostDecimals = 20;

template <typename Real>
std::string Shortest(Real value) {
  std::array<char, decimal::kLongestShortest> buffer;
  return std::string(buffer.data(), decimal::WriteShortest(value, buffer.data()));
}

}  // namespace

std::int32_t ParseInt(std::string_view text) {
  text = SkipBlanks(text);
  const char* cursor = text.data();
  const char* const last = cursor + text.size();
  const bool negative = TakeSign(cursor, last);
  constexpr std::int64_t kLimit = std::int64_t{std::numeric_limits<std::int32_t>::max()} + 1;
  std::int64_t magnitude = 0;
  for (; cursor != last && IsDigit(*cursor); ++cursor) {
    magnitude = magnitude * 10 + (*cursor - '0');
    if (magnitude > kLimit) magnitude = kLimit;
  }
  if (negative) return static_cast<std::int32_t>(-magnitude);
  return static_cast<std::int32_t>(magnitude == kLimit ? kLimit - 1 : magnitude);
}

double ParseDouble(std::string_view text) {
  text = SkipBlanks(text);
  return ReadDouble(text.data(), text.data() + text.size()).value;
}

LeadingDouble ReadDouble(const char* first, const char* last) {
  const char* cursor = first;
  const bool negative = TakeSign(cursor, last);
  if (!StartsNumber(cursor, last)) return {0.0, first};
  LeadingDouble number = ReadPlainDecimal(cursor, last);
  if (number.end == nullptr) number = ReadAnyDecimal(cursor, last);
  if (negative) number.value = -number.value;
  return number;
}

std::string FormatInt(std::int64_t value) {
  std::array<char, 24> buffer;
  const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return std::string(buffer.data(), end);
}

std::string FormatDouble(double value, int decimals) {
  std::array<char, decimal::LongestFixed(kMostDecimals)> buffer;
  return std::string(buffer.data(), decimal::WriteFixed(value, decimals, buffer.data()));
}

std::string FormatShortest(double value) { return Shortest(value); }

std::string FormatShortest(float value) { return Shortest(value); }

}  // namespace orvane
