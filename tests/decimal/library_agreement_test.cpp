#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>

#include "decimal/decimal.h"
#include "tests/support/bits.h"

// What does without the C++ library's functions for real numbers, beside a library that has them.
namespace decimal {
namespace {

// Of any size, whole, with few decimals, a power of two or beside one.
class Values {
 public:
  explicit Values(std::uint64_t seed) : random_(seed) {}

  double Next() {
    const std::uint64_t bits = random_();
    const auto whole = static_cast<double>(random_() >> (bits % 64));
    switch (turn_++ % 4) {
      case 0:
        return whole;
      case 1:
        return whole / std::pow(10.0, static_cast<double>(bits >> 8U & 15U));
      case 2:
        return test::BitCast<double>((bits & 0xFFF0'0000'0000'0000U) + (bits & 1U));
      default:
        return test::BitCast<double>(bits);
    }
  }

 private:
  std::mt19937_64 random_;
  unsigned turn_ = 0;
};

template <typename Real>
void ExpectSameShortest(Real value) {
  std::array<char, 32> expected;
  char* const end = std::to_chars(expected.data(), expected.data() + 32, value).ptr;
  std::array<char, kLongestShortest> text;
  char* const text_end = WriteShortest(value, text.data());
  ASSERT_EQ(std::string(text.data(), text_end), std::string(expected.data(), end));
}

TEST(DecimalAgreement, WithTheLibraryOnShortestTexts) {
  Values values(20241103);
  for (int round = 0; round < 40000; ++round) {
    const double value = values.Next();
    ExpectSameShortest(value);
    if (std::abs(value) < 3e38) ExpectSameShortest(static_cast<float>(value));
  }
}

TEST(DecimalAgreement, WithTheLibraryOnFixedTexts) {
  Values values(20241104);
  for (int round = 0; round < 40000; ++round) {
    const double value = values.Next();
    const int decimals = round % 21;
    std::array<char, 400> expected;
    char* const end = std::to_chars(expected.data(), expected.data() + 400, value,
                                    std::chars_format::fixed, decimals)
                          .ptr;
    std::array<char, LongestFixed(20)> text;
    char* const text_end = WriteFixed(value, decimals, text.data());
    ASSERT_EQ(std::string(text.data(), text_end), std::string(expected.data(), end));
  }
}

template <typename Real>
void ExpectSameReading(std::string_view text) {
  Real expected = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), expected);
  const Reading<Real> reading = Read<Real>(text.data(), text.data() + text.size());
  ASSERT_EQ(reading.end, end) << text;
  const bool fits = error != std::errc::result_out_of_range && std::isfinite(expected);
  ASSERT_EQ(reading.fits, fits) << text;
  if (!fits) return;
  ASSERT_EQ(reading.value, expected) << text;
}

// Texts that nobody would write, most of them torn: signs, points, exponents and words anywhere.
TEST(DecimalAgreement, WithTheLibraryOnTornNumbers) {
  std::mt19937_64 random(20241105);
  const std::string_view characters = "012345678901234567890123456789..eE+-infNan()";
  for (int round = 0; round < 50000; ++round) {
    std::string text(1 + random() % 24, ' ');
    for (char& character : text) character = characters[random() % characters.size()];
    ExpectSameReading<double>(text);
    ExpectSameReading<float>(text);
  }
}

}  // namespace
}  // namespace decimal
