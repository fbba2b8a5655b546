// Bytes as a number, and as the bits of one: both ways agree with the C library.
#include <algorithm>
#include <bit>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>

#include "formats/text/numbers.h"
#include "fuzz/expect.h"
#include "fuzz/target.h"

namespace {

bool SameBits(double left, double right) {
  return std::bit_cast<std::uint64_t>(left) == std::bit_cast<std::uint64_t>(right);
}

bool IsDigit(char character) { return std::isdigit(static_cast<unsigned char>(character)) != 0; }

// As the C library reads it, but for the forms that we do not accept: blanks at the start,
// hexadecimal, and the words for what is not finite.
orvane::LeadingDouble Expected(const std::string& text) {
  const char* const first = text.c_str();
  const char* const digits = first + (*first == '-' || *first == '+' ? 1 : 0);
  if (!IsDigit(*digits) && !(*digits == '.' && IsDigit(digits[1]))) return {0.0, first};
  const bool is_hexadecimal = *digits == '0' && (digits[1] == 'x' || digits[1] == 'X');
  if (is_hexadecimal) return {*first == '-' ? -0.0 : 0.0, digits + 1};
  char* end = nullptr;
  const double value = std::strtod(first, &end);
  return {value, end};
}

void CheckReading(const std::string& text) {
  const orvane::LeadingDouble expected = Expected(text);
  const orvane::LeadingDouble actual = orvane::ReadDouble(text.data(), text.data() + text.size());
  fuzz::Expect(SameBits(actual.value, expected.value), "a real number has the value of strtod");
  fuzz::Expect(actual.end == expected.end, "a real number ends where strtod ends it");

  using Limits = std::numeric_limits<std::int32_t>;
  const long long whole = std::strtoll(text.c_str(), nullptr, 10);
  fuzz::Expect(orvane::ParseInt(text) == std::clamp<long long>(whole, Limits::min(), Limits::max()),
               "a whole number has the value of strtoll, within 32 bits");
}

void CheckPrinting(double value, int decimals) {
  char expected[400];
  std::snprintf(expected, sizeof expected, "%.*f", decimals, value);
  fuzz::Expect(orvane::FormatDouble(value, decimals) == expected, "printed as printf does");
  if (!std::isfinite(value)) return;
  fuzz::Expect(SameBits(orvane::ParseDouble(orvane::FormatShortest(value)), value),
               "the shortest form reads back as the same value");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  CheckReading(std::string(reinterpret_cast<const char*>(data), size));
  double value = 0.0;
  if (size >= sizeof value) std::memcpy(&value, data, sizeof value);
  if (!std::isnan(value)) CheckPrinting(value, static_cast<int>(size % 21));
  return 0;
}
