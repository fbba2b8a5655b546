#include "formats/text/six_decimals.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "decimal/decimal.h"

namespace orvane {
namespace {

static_assert(kLongestSixDecimals >= decimal::LongestFixed(6));

constexpr std::uint32_t kThousand = 1'000;
constexpr std::uint32_t kMillion = 1'000'000;

// Millionths below this have at most six digits before the point and six behind it, after rounding
// up too.
constexpr double kMostMillionths = 1e12 - 1.0;

// From here to twice as much the doubles are the whole numbers: adding it rounds to one of those,
// and leaves that in the lowest bits.
constexpr double kWholeDoubles = 0x1p52;
constexpr std::uint64_t kWholeBits = (std::uint64_t{1} << 52U) - 1;

// The digits of a number below a thousand, and how many they are. Four characters are copied,
// however many count.
using Digits = std::array<char, 4>;

constexpr Digits WithZeros(std::uint32_t number) {
  const auto digit = [](std::uint32_t value) { return static_cast<char>('0' + value % 10); };
  return {digit(number / 100), digit(number / 10), digit(number), 3};
}

constexpr Digits WithoutZeros(std::uint32_t number) {
  const Digits all = WithZeros(number);
  if (number < 10) return {all[2], '\0', '\0', 1};
  if (number < 100) return {all[1], all[2], '\0', 2};
  return all;
}

// A point and three digits.
constexpr Digits BehindPoint(std::uint32_t number) {
  const Digits all = WithZeros(number);
  return {'.', all[0], all[1], all[2]};
}

using DigitTable = std::array<Digits, kThousand>;

constexpr DigitTable MakeTable(Digits (*digits_of)(std::uint32_t)) {
  DigitTable table{};
  for (std::uint32_t number = 0; number < kThousand; ++number) table[number] = digits_of(number);
  return table;
}

constexpr DigitTable kLeading = MakeTable(WithoutZeros);
constexpr DigitTable kFollowing = MakeTable(WithZeros);
constexpr DigitTable kFraction = MakeTable(BehindPoint);

char* Write(const Digits& digits, char* first) {
  std::memcpy(first, digits.data(), digits.size());
  return first + digits.back();
}

// `number` below a million, without leading zeros.
char* WriteShortInteger(std::uint32_t number, char* first) {
  if (number < kThousand) return Write(kLeading[number], first);
  return Write(kFollowing[number % kThousand], Write(kLeading[number / kThousand], first));
}

char* WriteFraction(std::uint32_t millionths, char* first) {
  const Digits& thousandths = kFraction[millionths / kThousand];
  std::memcpy(first, thousandths.data(), thousandths.size());
  return Write(kFollowing[millionths % kThousand], first + thousandths.size());
}

inline char* WriteOne(double value, char* first) {
  const double product = std::abs(value) * kMillion;
  if (!(product < kMostMillionths)) return decimal::WriteFixed(value, 6, first);
  const double sum = product + kWholeDoubles;
  const double rest = product - (sum - kWholeDoubles);
  // Rounded to a double, the product never gets past a tie, which is a double itself. On a tie it
  // may have come from either side.
  if (std::abs(rest) == 0.5) return decimal::WriteFixed(value, 6, first);

  std::uint64_t millionths = 0;
  std::memcpy(&millionths, &sum, sizeof sum);
  millionths &= kWholeBits;
  // Whether there is a sign is as good as chance, which no branch foretells.
  *first = '-';
  first += std::signbit(value) ? 1 : 0;
  first = WriteShortInteger(static_cast<std::uint32_t>(millionths / kMillion), first);
  return WriteFraction(static_cast<std::uint32_t>(millionths % kMillion), first);
}

}  // namespace

char* WriteSixDecimals(double value, char* first) { return WriteOne(value, first); }

char* WriteColumns(std::span<const double> values, char* first) {
  for (const double value : values) {
    *first++ = '\t';
    first = WriteOne(value, first);
  }
  return first;
}

}  // namespace orvane
