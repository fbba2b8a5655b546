#pragma once

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>

// Numbers as the floors read and print them: a plain loop for those that motion files hold, the
// standard library for all others. Both ways give the nearest value.
namespace bench {

inline constexpr std::array<double, 16> kPowersOfTen{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                     1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

// Of a text that std::from_chars reads from `first`; moves `at` behind it. What is no number is 0,
// and one byte long.
double ReadAnyNumber(const char* first, const char*& at);

// Characters of the longest number with six decimals.
inline constexpr std::size_t kLongestNumber = 320;

// Writes with six decimals, however large or small. Returns what comes behind.
char* PutAnyNumber(char* at, double value);

inline const char* SkipTo(const char* at, char wanted) {
  while (*at != wanted) ++at;
  return at;
}

// Reads digits into `number`, and moves `at` behind them.
inline void ReadDigits(const char*& at, std::uint64_t& number) {
  for (; *at >= '0' && *at <= '9'; ++at)
    number = number * 10 + static_cast<std::uint64_t>(*at - '0');
}

// Reads the number at `at`, which moves behind it. A line break has to follow somewhere.
inline double ReadNumber(const char*& at) {
  constexpr std::ptrdiff_t kExact = 15;  // characters: that many digits are below 2^53
  const char* const first = at;
  const bool negative = *at == '-';
  if (negative) ++at;
  std::uint64_t digits = 0;
  ReadDigits(at, digits);
  std::ptrdiff_t decimals = 0;
  if (*at == '.') {
    const char* const point = at++;
    ReadDigits(at, digits);
    decimals = at - point - 1;
  }
  if (at - first > kExact || at == first || *at > ' ') return ReadAnyNumber(first, at);
  const double size = static_cast<double>(static_cast<std::int64_t>(digits)) /
                      kPowersOfTen[static_cast<std::size_t>(decimals)];
  return negative ? -size : size;
}

// Writes two digits. Returns what comes behind them.
inline char* PutPair(char* at, std::uint32_t number) {
  at[0] = static_cast<char>('0' + number / 10);
  at[1] = static_cast<char>('0' + number % 10);
  return at + 2;
}

// Writes as many digits as it takes.
inline char* PutWhole(char* at, std::uint32_t number) {
  if (number >= 100) at = PutWhole(at, number / 100);
  if (number >= 10) return PutPair(at, number % 100);
  *at = static_cast<char>('0' + number);
  return at + 1;
}

// Writes with six decimals, rounded to nearest. There is room for kLongestNumber.
inline char* PutNumber(char* at, double value) {
  const double size = (value < 0 ? -value : value) * 1e6;
  if (!(size < 1e11) || value == 0) return PutAnyNumber(at, value);
  const auto whole = static_cast<std::int64_t>(size);
  const double rest = size - static_cast<double>(whole);
  // The product is rounded: too near to a half, it does not tell on which side the value lies.
  if (rest > 0.4999 && rest < 0.5001) return PutAnyNumber(at, value);
  const std::int64_t rounded = whole + (rest > 0.5 ? 1 : 0);
  const auto decimals = static_cast<std::uint32_t>(rounded % 1'000'000);
  if (value < 0) *at++ = '-';
  at = PutWhole(at, static_cast<std::uint32_t>(rounded / 1'000'000));
  *at++ = '.';
  at = PutPair(at, decimals / 10'000);
  at = PutPair(at, decimals / 100 % 100);
  return PutPair(at, decimals % 100);
}

}  // namespace bench
