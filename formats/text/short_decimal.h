#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "formats/text/words.h"

// The numbers that columns are full of, read without a loop over their digits: a minus or none, 1
// to 16 digits, and a point with no more than eight of them on either side.
namespace orvane {

namespace short_decimal {

// Those that a number with so many decimals is divided by, and with a minus.
inline constexpr std::array<std::array<double, 9>, 2> kDivisors = {
    {{1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8},
     {-1e0, -1e1, -1e2, -1e3, -1e4, -1e5, -1e6, -1e7, -1e8}}};
inline constexpr std::array<Word, 9> kWholePowersOfTen = {
    1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000};

// The bytes of the last so many characters of a word.
inline constexpr std::array<Word, 9> kLast = {0,
                                              0xFF00000000000000,
                                              0xFFFF000000000000,
                                              0xFFFFFF0000000000,
                                              0xFFFFFFFF00000000,
                                              0xFFFFFFFFFF000000,
                                              0xFFFFFFFFFFFF0000,
                                              0xFFFFFFFFFFFFFF00,
                                              0xFFFFFFFFFFFFFFFF};

// The values of the last `count` digits of `word`, each in its byte, and zeros before them.
[[nodiscard]] inline Word DigitsIn(Word word, std::size_t count) {
  return (word ^ WordOf('0')) & kLast[count];
}

// Whether no byte is above 9.
[[nodiscard]] constexpr bool AreDigits(Word digits) {
  return ((digits | (digits + WordOf('\x76'))) & WordOf('\x80')) == 0;
}

// The number that eight digits make: of pairs first, then of fours, then of all.
[[nodiscard]] constexpr Word ValueOf(Word digits) {
  constexpr Word kEveryOtherPair = 0x000000FF000000FF;
  digits = digits * 10 + (digits >> 8U);
  return ((digits & kEveryOtherPair) * Word{0x000F424000000064} +
          ((digits >> 16U) & kEveryOtherPair) * Word{0x0000271000000001}) >>
         32U;
}

}  // namespace short_decimal

// So many characters before the end of a cell are looked at, whatever they are.
inline constexpr std::size_t kShortDecimalReach = kCharactersPerWord + 1;
[[nodiscard]] constexpr std::size_t LongerDecimalReach(std::size_t decimals) {
  return decimals + 1 + kCharactersPerWord;
}

// Reads the cell from `begin` up to `end`, with `decimals` digits behind its point, and eight at
// most in all, into `value`, correctly rounded: digits and power of ten are exact. Returns false
// when it is anything else. REQUIRES: the cell is not empty, `decimals` is at most 8, and
// kShortDecimalReach characters before `end` may be read.
[[nodiscard]] inline bool ReadShortDecimal(const char* begin, const char* end, std::size_t decimals,
                                           double& value) {
  namespace parts = short_decimal;
  const std::size_t minus = *begin == '-' ? 1 : 0;
  const std::size_t digits = static_cast<std::size_t>(end - begin) - minus - 1;
  if (digits - 1 >= kCharactersPerWord || digits < decimals) return false;
  if (*(end - 1 - decimals) != '.') return false;
  const Word behind_point = LoadWord(end - kCharactersPerWord) & parts::kLast[decimals];
  const Word before_point = LoadWord(end - kCharactersPerWord - 1) & ~parts::kLast[decimals];
  const Word number = parts::DigitsIn(behind_point | before_point, digits);
  if (!parts::AreDigits(number)) return false;
  value = static_cast<double>(static_cast<std::int64_t>(parts::ValueOf(number))) /
          parts::kDivisors[minus][decimals];
  return true;
}

// The same of 9 to 16 digits, of which no more than eight are on either side of the point.
// REQUIRES: LongerDecimalReach(decimals) characters may be read.
[[nodiscard]] inline bool ReadLongerDecimal(const char* begin, const char* end,
                                            std::size_t decimals, double& value) {
  namespace parts = short_decimal;
  constexpr Word kLargestExactInteger = Word{1} << 53U;
  const std::size_t minus = *begin == '-' ? 1 : 0;
  const std::size_t digits = static_cast<std::size_t>(end - begin) - minus - 1;
  if (digits - 1 >= 2 * kCharactersPerWord || digits < decimals) return false;
  if (digits - decimals > kCharactersPerWord) return false;
  const char* const point = end - 1 - decimals;
  if (*point != '.') return false;
  const Word behind = parts::DigitsIn(LoadWord(end - kCharactersPerWord), decimals);
  const Word before = parts::DigitsIn(LoadWord(point - kCharactersPerWord), digits - decimals);
  if (!parts::AreDigits(behind) || !parts::AreDigits(before)) return false;
  const Word number =
      parts::ValueOf(before) * parts::kWholePowersOfTen[decimals] + parts::ValueOf(behind);
  if (number > kLargestExactInteger) return false;
  value =
      static_cast<double>(static_cast<std::int64_t>(number)) / parts::kDivisors[minus][decimals];
  return true;
}

// The same of one or the other, of which `reach` characters before `end` may be read.
[[nodiscard]] inline bool ReadDecimalOfRow(const char* begin, const char* end, std::size_t reach,
                                           std::size_t decimals, double& value) {
  return reach >= kShortDecimalReach && (ReadShortDecimal(begin, end, decimals, value) ||
                                         (reach >= LongerDecimalReach(decimals) &&
                                          ReadLongerDecimal(begin, end, decimals, value)));
}

}  // namespace orvane
