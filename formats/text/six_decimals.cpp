#include "formats/text/six_decimals.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "decimal/decimal.h"

namespace orvane {
namespace {

static_assert(kLongestSixDecimals >= decimal::LongestFixed(6));

constexpr std::uint32_t kMillion = 1'000'000;

// Millionths below this have at most six digits before the point and six behind it, after rounding
// up too.
constexpr double kMostMillionths = 1e12 - 1.0;

constexpr auto kDigitPairs = [] {
  std::array<char, 200> pairs{};
  for (std::size_t number = 0; number < 100; ++number) {
    pairs[2 * number] = static_cast<char>('0' + number / 10);
    pairs[2 * number + 1] = static_cast<char>('0' + number % 10);
  }
  return pairs;
}();

char* WritePair(std::uint32_t number, char* first) {
  std::memcpy(first, &kDigitPairs[std::size_t{2} * number], 2);
  return first + 2;
}

char* WriteSixDigits(std::uint32_t number, char* first) {
  first = WritePair(number / 10'000, first);
  first = WritePair(number / 100 % 100, first);
  return WritePair(number % 100, first);
}

// `number` below a million, without leading zeros.
char* WriteShortInteger(std::uint32_t number, char* first) {
  if (number < 10) {
    *first = static_cast<char>('0' + number);
    return first + 1;
  }
  if (number < 100) return WritePair(number, first);
  return std::to_chars(first, first + 6, number).ptr;
}

}  // namespace

char* WriteSixDecimals(double value, char* first) {
  const double product = std::abs(value) * kMillion;
  if (!(product < kMostMillionths)) return decimal::WriteFixed(value, 6, first);
  const auto whole = static_cast<std::int64_t>(product);
  const double rest = product - static_cast<double>(whole);
  // Rounded to a double, the product never gets past a tie, which is a double itself. On a tie it
  // may have come from either side.
  if (rest == 0.5) return decimal::WriteFixed(value, 6, first);

  const auto millionths = static_cast<std::uint64_t>(whole) + (rest > 0.5 ? 1 : 0);
  if (std::signbit(value)) *first++ = '-';
  first = WriteShortInteger(static_cast<std::uint32_t>(millionths / kMillion), first);
  *first++ = '.';
  return WriteSixDigits(static_cast<std::uint32_t>(millionths % kMillion), first);
}

}  // namespace orvane
