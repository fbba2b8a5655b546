#include "formats/text/short_decimal.h"

namespace orvane {
namespace {

constexpr std::array<Word, 9> kPowersOfTen = {1,      10,      100,      1000,     10000,
                                              100000, 1000000, 10000000, 100000000};
constexpr Word kLargestExactInteger = Word{1} << 53U;

}  // namespace

bool ReadLongerDecimal(const char* begin, const char* end, std::size_t decimals, double& value) {
  namespace parts = short_decimal;
  const std::size_t minus = *begin == '-' ? 1 : 0;
  const std::size_t digits = static_cast<std::size_t>(end - begin) - minus - 1;
  if (digits - 1 >= 2 * kCharactersPerWord || digits < decimals) return false;
  if (digits - decimals > kCharactersPerWord) return false;
  const char* const point = end - 1 - decimals;
  if (*point != '.') return false;
  const Word behind = parts::DigitsIn(LoadWord(end - kCharactersPerWord), decimals);
  const Word before = parts::DigitsIn(LoadWord(point - kCharactersPerWord), digits - decimals);
  if (!parts::AreDigits(behind) || !parts::AreDigits(before)) return false;
  const Word number = parts::ValueOf(before) * kPowersOfTen[decimals] + parts::ValueOf(behind);
  if (number > kLargestExactInteger) return false;
  value = parts::kSigns[minus] *
          (static_cast<double>(static_cast<std::int64_t>(number)) / parts::kPowersOfTen[decimals]);
  return true;
}

}  // namespace orvane
