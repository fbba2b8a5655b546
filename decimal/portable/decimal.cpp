#include "decimal/decimal.h"

#include <fast_float/fast_float.h>
#include <fmt/compile.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>
#include <string_view>

namespace decimal {
namespace {

// True when the digits in front of an exponent are not all 0.
bool HasValue(std::string_view number) {
  const std::string_view digits = number.substr(0, number.find_first_of("eE"));
  return digits.find_first_of("123456789") != std::string_view::npos;
}

// A number d.ddd times a power of ten; neither its first digit nor its last is 0.
struct Scientific {
  std::string digits;
  int exponent = 0;

  int count() const { return static_cast<int>(digits.size()); }
};

// With the fewest characters in the notation that the library finds fit.
template <typename Real>
char* WriteAsItIs(Real value, char* first) {
  return fmt::format_to(first, FMT_COMPILE("{}"), value);
}

// The fewest digits that read back as `value`, which is finite and above 0.
template <typename Real>
Scientific FewestDigits(Real value) {
  std::array<char, kLongestShortest> written;
  std::string text(written.data(), WriteAsItIs(value, written.data()));
  int exponent = 0;
  if (const std::size_t letter = text.find('e'); letter != std::string::npos) {
    const std::size_t sign = letter + 1;
    const std::size_t number = text[sign] == '+' ? sign + 1 : sign;
    std::from_chars(text.data() + number, text.data() + text.size(), exponent);
    text.resize(letter);
  }
  const std::size_t point = std::min(text.find('.'), text.size());
  if (point != text.size()) text.erase(point, 1);
  const std::size_t first = text.find_first_not_of('0');
  exponent += static_cast<int>(point) - static_cast<int>(first) - 1;
  return {text.substr(first, text.find_last_not_of('0') + 1 - first), exponent};
}

int LengthWithExponent(const Scientific& number) {
  const int point = number.count() > 1 ? 1 : 0;
  return number.count() + point + (std::abs(number.exponent) < 100 ? 4 : 5);
}

int LengthInFixedNotation(const Scientific& number) {
  if (number.exponent < 0) return number.count() + 1 - number.exponent;
  const int whole = number.exponent + 1;
  return whole < number.count() ? number.count() + 1 : whole;
}

char* Write(std::string_view text, char* first) {
  return std::copy(text.begin(), text.end(), first);
}

char* WriteWithExponent(const Scientific& number, char* first) {
  const std::string_view digits = number.digits;
  first = Write(digits.substr(0, 1), first);
  if (digits.size() > 1) first = Write(digits.substr(1), Write(".", first));
  first = Write(number.exponent < 0 ? "e-" : "e+", first);
  const int exponent = std::abs(number.exponent);
  if (exponent < 10) *first++ = '0';
  constexpr int kMostDigits = 3;
  return std::to_chars(first, first + kMostDigits, exponent).ptr;
}

// The digits of a number that is not whole.
char* WriteFraction(const Scientific& number, char* first) {
  const std::string_view digits = number.digits;
  if (number.exponent < 0) {
    return Write(digits, std::fill_n(Write("0.", first), -number.exponent - 1, '0'));
  }
  const auto whole = static_cast<std::size_t>(number.exponent) + 1;
  return Write(digits.substr(whole), Write(".", Write(digits.substr(0, whole), first)));
}

}  // namespace

template <typename Real>
Reading<Real> Read(const char* first, const char* last) {
  Real value = 0;
  const char* const end = fast_float::from_chars(first, last, value).ptr;
  const std::string_view used(first, static_cast<std::size_t>(end - first));
  return {value, end, std::isfinite(value) && (value != 0 || !HasValue(used))};
}

char* WriteFixed(double value, int decimals, char* first) {
  return fmt::format_to(first, FMT_COMPILE("{:.{}f}"), value, decimals);
}

template <typename Real>
char* WriteShortest(Real value, char* first) {
  if (value == 0 || !std::isfinite(value)) return WriteAsItIs(value, first);
  if (std::signbit(value)) *first++ = '-';
  const Real size = std::abs(value);
  const Scientific number = FewestDigits(size);
  if (LengthWithExponent(number) < LengthInFixedNotation(number)) {
    return WriteWithExponent(number, first);
  }
  // Digits behind the fewest are not 0 in a large whole number, and as many as zeros would be.
  if (number.exponent + 1 >= number.count()) return WriteFixed(size, 0, first);
  return WriteFraction(number, first);
}

template Reading<float> Read(const char*, const char*);
template Reading<double> Read(const char*, const char*);
template char* WriteShortest(float, char*);
template char* WriteShortest(double, char*);

}  // namespace decimal
