#include "decimal/decimal.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string>
#include <string_view>

#include "tests/support/bits.h"

namespace decimal {
namespace {

template <typename Real>
constexpr Real kInfinity = std::numeric_limits<Real>::infinity();

template <typename Real>
struct ReadCase {
  std::string_view text;
  Real value;
  std::size_t used;
  bool fits = true;
};

template <typename Real>
void ExpectRead(const ReadCase<Real>& c) {
  const char* const first = c.text.data();
  const Reading<Real> reading = Read<Real>(first, first + c.text.size());
  EXPECT_EQ(reading.value, c.value) << c.text;
  EXPECT_EQ(std::signbit(reading.value), std::signbit(c.value)) << c.text;
  EXPECT_EQ(reading.end - first, static_cast<std::ptrdiff_t>(c.used)) << c.text;
  EXPECT_EQ(reading.fits, c.fits) << c.text;
}

TEST(DecimalRead, TakesTheNumberThatTheTextStartsWith) {
  const ReadCase<double> cases[] = {
      {"", 0.0, 0},
      {"x", 0.0, 0},
      {"-", 0.0, 0},
      {"+1", 0.0, 0},
      {" 1", 0.0, 0},
      {".", 0.0, 0},
      {"e5", 0.0, 0},
      {"0", 0.0, 1},
      {"-0", -0.0, 2},
      {"1.5", 1.5, 3},
      {"-1.5 ", -1.5, 4},
      {".5.5", 0.5, 2},
      {"5.", 5.0, 2},
      {"12,5", 12.0, 2},
      {"1e3x", 1000.0, 3},
      {"1E+3", 1000.0, 4},
      {"25e-1", 2.5, 5},
      {"1e", 1.0, 1},
      {"1e+", 1.0, 1},
      {"0x1p4", 0.0, 1},
      {"0e999", 0.0, 5},
      {"-0.00e999", -0.0, 9},
      {"0.000e-999", 0.0, 10},
      {"4.9e-324", 5e-324, 8},
      {"1d5", 1.0, 1},
      {"1_000", 1.0, 1},
      {"123456789012345678901", 123456789012345678901.0, 21},
  };
  for (const auto& c : cases) ExpectRead(c);
}

TEST(DecimalRead, TellsWhatDoesNotFit) {
  const ReadCase<double> doubles[] = {
      {"1e309", kInfinity<double>, 5, false},
      {"-1e309", -kInfinity<double>, 6, false},
      {"1e99999999999999999999", kInfinity<double>, 22, false},
      {"0.001e99999999999999999999", kInfinity<double>, 26, false},
      {"1e-400", 0.0, 6, false},
      {"-1e-400x", -0.0, 7, false},
      {"100e-99999999999999999999", 0.0, 25, false},
      {"inf", kInfinity<double>, 3, false},
      {"-Infinity", -kInfinity<double>, 9, false},
  };
  for (const auto& c : doubles) ExpectRead(c);
  const ReadCase<float> floats[] = {
      {"3.4028235e38", std::numeric_limits<float>::max(), 12},
      {"3.4028236e38", kInfinity<float>, 12, false},
      {"1e-45", std::numeric_limits<float>::denorm_min(), 5},
      {"-7e-46", -0.0F, 6, false},
  };
  for (const auto& c : floats) ExpectRead(c);
}

TEST(DecimalRead, FindsNoFiniteNumberInItsName) {
  for (const std::string_view text : {"nan", "-NaN"}) {
    const Reading<double> reading = Read<double>(text.data(), text.data() + text.size());
    EXPECT_TRUE(std::isnan(reading.value)) << text;
    EXPECT_FALSE(reading.fits) << text;
  }
}

// Just above the middle of two floats; the nearest double is that middle.
TEST(DecimalRead, RoundsToSinglePrecisionOnce) {
  ExpectRead<float>({"1.00000005960464477539062500000001", 0x1.000002p0F, 34});
  ExpectRead<float>({"1.000000059604644775390625", 1.0F, 26});
}

std::string Fixed(double value, int decimals) {
  std::array<char, LongestFixed(20)> text;
  return {text.data(), WriteFixed(value, decimals, text.data())};
}

TEST(DecimalWriteFixed, RoundsTiesToEven) {
  EXPECT_EQ(Fixed(0.5, 0), "0");
  EXPECT_EQ(Fixed(1.5, 0), "2");
  EXPECT_EQ(Fixed(-2.5, 0), "-2");
  EXPECT_EQ(Fixed(0.125, 2), "0.12");
  EXPECT_EQ(Fixed(0.0078125, 6), "0.007812");
  EXPECT_EQ(Fixed(9.9999999, 6), "10.000000");
}

TEST(DecimalWriteFixed, PrintsWhatIsNoNumberToo) {
  EXPECT_EQ(Fixed(-0.0, 6), "-0.000000");
  EXPECT_EQ(Fixed(-1e-300, 3), "-0.000");
  EXPECT_EQ(Fixed(kInfinity<double>, 6), "inf");
  EXPECT_EQ(Fixed(-kInfinity<double>, 0), "-inf");
  EXPECT_EQ(Fixed(std::numeric_limits<double>::quiet_NaN(), 6), "nan");
  EXPECT_EQ(Fixed(std::numeric_limits<double>::lowest(), 20).size(), LongestFixed(20));
}

// Any double, as "%f" prints it.
TEST(DecimalWriteFixed, AgreesWithTheCLibrary) {
  std::mt19937_64 random(20241101);
  for (int round = 0; round < 20000; ++round) {
    const double value = test::BitCast<double>(random());
    if (!std::isfinite(value)) continue;
    const int decimals = static_cast<int>(random() % 21);
    std::array<char, 400> expected;
    std::snprintf(expected.data(), expected.size(), "%.*f", decimals, value);
    ASSERT_EQ(Fixed(value, decimals), expected.data());
  }
}

template <typename Real>
std::string Shortest(Real value) {
  std::array<char, kLongestShortest> text;
  return {text.data(), WriteShortest(value, text.data())};
}

TEST(DecimalWriteShortest, TakesTheNotationWithFewerCharacters) {
  const struct {
    double value;
    std::string_view text;
  } cases[] = {
      {0.0, "0"},
      {-0.0, "-0"},
      {7.0, "7"},
      {1000.0, "1000"},
      {10000.0, "10000"},
      {100000.0, "1e+05"},
      {120000.0, "120000"},
      {-1234567.0, "-1234567"},
      {0.001, "0.001"},
      {0.0001, "1e-04"},
      {0.00012, "0.00012"},
      {0.000012, "1.2e-05"},
      {-12.5, "-12.5"},
      {1e100, "1e+100"},
      {1.5e-300, "1.5e-300"},
      {0.1, "0.1"},
      {1.0 / 3.0, "0.3333333333333333"},
      {9007199254740993.0, "9007199254740992"},
      {0x1p60, "1152921504606846976"},
      {1e22, "1e+22"},
      {0x1p-44, "5.684341886080802e-14"},
      {std::numeric_limits<double>::lowest(), "-1.7976931348623157e+308"},
      {std::numeric_limits<double>::denorm_min(), "5e-324"},
      {kInfinity<double>, "inf"},
      {-kInfinity<double>, "-inf"},
      {std::numeric_limits<double>::quiet_NaN(), "nan"},
  };
  for (const auto& c : cases) EXPECT_EQ(Shortest(c.value), c.text);
}

TEST(DecimalWriteShortest, CountsTheDigitsOfItsOwnType) {
  EXPECT_EQ(Shortest(0.1F), "0.1");
  EXPECT_EQ(Shortest(16777216.0F), "16777216");
  EXPECT_EQ(Shortest(std::numeric_limits<float>::max()), "3.4028235e+38");
  EXPECT_EQ(Shortest(std::numeric_limits<float>::denorm_min()), "1e-45");
}

template <typename Real, typename Bits>
void ExpectSameAgain(Bits bits) {
  const Real value = test::BitCast<Real>(bits);
  if (!std::isfinite(value)) return;
  const std::string text = Shortest(value);
  const Reading<Real> reading = Read<Real>(text.data(), text.data() + text.size());
  ASSERT_EQ(test::BitCast<Bits>(reading.value), bits) << text;
}

TEST(DecimalWriteShortest, ReadsBackAsTheSameValue) {
  std::mt19937_64 random(20241102);
  for (int round = 0; round < 20000; ++round) {
    const std::uint64_t bits = random();
    ExpectSameAgain<double>(bits);
    ExpectSameAgain<float>(static_cast<std::uint32_t>(bits));
  }
}

}  // namespace
}  // namespace decimal
