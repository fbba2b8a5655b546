#include "formats/text/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/bits.h"

namespace orvane {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct IntCase {
  std::string_view text;
  std::int32_t value;
};

TEST(ParseInt, ConvertsTheNumberThatTheTextStartsWith) {
  const std::vector<IntCase> cases = {
      {"0", 0},      {"42", 42},    {"-42", -42}, {"+42", 42}, {"007", 7},    {" \t\n\v\f\r12", 12},
      {"29.97", 29}, {"12abc", 12}, {"1e3", 1},   {"0x10", 0}, {"12 34", 12}, {"-0", 0},
  };
  for (const IntCase& c : cases) EXPECT_EQ(ParseInt(c.text), c.value) << c.text;
}

TEST(ParseInt, IsZeroForTextThatStartsWithNoNumber) {
  for (std::string_view text :
       {"", " ", "abc", "-", "+", "--5", "+-5", "- 5", ".5", "nan", "inf"}) {
    EXPECT_EQ(ParseInt(text), 0) << text;
  }
}

TEST(ParseInt, SaturatesAt32Bits) {
  const std::vector<IntCase> cases = {
      {"2147483647", 2147483647},
      {"2147483648", 2147483647},
      {"99999999999999999999999999", 2147483647},
      {"-2147483648", -2147483647 - 1},
      {"-2147483649", -2147483647 - 1},
      {"-99999999999999999999999999", -2147483647 - 1},
  };
  for (const IntCase& c : cases) EXPECT_EQ(ParseInt(c.text), c.value) << c.text;
}

struct DoubleCase {
  std::string_view text;
  double value;
};

TEST(ParseDouble, ConvertsTheNumberThatTheTextStartsWith) {
  const std::vector<DoubleCase> cases = {
      {"0", 0.0},
      {"1", 1.0},
      {"1.5", 1.5},
      {"-1.5", -1.5},
      {"+1.5", 1.5},
      {".5", 0.5},
      {"-.5", -0.5},
      {"5.", 5.0},
      {"915.149150", 915.149150},
      {" \t\n\v\f\r2.5", 2.5},
      {"1e3", 1000.0},
      {"1E3", 1000.0},
      {"1e+3", 1000.0},
      {"25e-1", 2.5},
      {"1.e2", 100.0},
      {".5e1", 5.0},
      {"1e", 1.0},
      {"1e+", 1.0},
      {"1e-x", 1.0},
      {"1.5abc", 1.5},
      {"1,5", 1.0},
      {"1.2.3", 1.2},
      {"1_000", 1.0},
      {"0x1p4", 0.0},
      {"0X10", 0.0},
      {"1 2", 1.0},
      {"1d5", 1.0},
  };
  for (const DoubleCase& c : cases) EXPECT_EQ(ParseDouble(c.text), c.value) << c.text;
}

TEST(ParseDouble, IsZeroForTextThatStartsWithNoNumber) {
  for (std::string_view text :
       {"",    " ",  "abc", "-",   "+",    "--5",      "+-5", "-+5", "- 5",     ".",    "-.",
        ".e5", "e5", "inf", "INF", "-inf", "infinity", "nan", "NaN", "-nan(1)", "\xff", "#"}) {
    EXPECT_EQ(ParseDouble(text), 0.0) << text;
    EXPECT_FALSE(std::signbit(ParseDouble(text))) << text;
  }
}

TEST(ParseDouble, KeepsTheSignOfZero) {
  EXPECT_TRUE(std::signbit(ParseDouble("-0.000000")));
  EXPECT_TRUE(std::signbit(ParseDouble("-0e5")));
  EXPECT_FALSE(std::signbit(ParseDouble("0.000000")));
}

TEST(ParseDouble, OverflowsToInfinity) {
  const std::string many(400, '1');
  for (const std::string& text :
       {std::string("1e999"), std::string("1e309"), std::string("1.7976931348623159e308"), many,
        many + ".5", "0." + std::string(400, '0') + "1e800", many + "e-50",
        std::string("1e99999999999999999999"), std::string("0.001e99999999999999999999"),
        std::string("1e9223372036854775807"), std::string("0.01e9223372036854775807")}) {
    EXPECT_EQ(ParseDouble(text), kInfinity) << text;
    EXPECT_EQ(ParseDouble("-" + text), -kInfinity) << text;
  }
}

TEST(ParseDouble, UnderflowsToZeroWithTheSignWritten) {
  const std::string zeros(400, '0');
  for (const std::string& text :
       {std::string("1e-999"), "0." + zeros + "1", "1" + zeros + "e-800",
        std::string("2.4703282292062327e-324"), std::string("1e-99999999999999999999"),
        std::string("100e-99999999999999999999"), std::string("100e-9223372036854775807"),
        std::string("0.01e-9223372036854775807")}) {
    EXPECT_EQ(ParseDouble(text), 0.0) << text;
    EXPECT_TRUE(std::signbit(ParseDouble("-" + text))) << text;
  }
}

TEST(ParseDouble, IsNotFooledByExponentsThatCancel) {
  EXPECT_EQ(ParseDouble("0e999"), 0.0);
  EXPECT_EQ(ParseDouble("0.000e99999999999999999999"), 0.0);
  EXPECT_EQ(ParseDouble("1" + std::string(400, '0') + "e-400"), 1.0);
  EXPECT_EQ(ParseDouble("0." + std::string(399, '0') + "1e400"), 1.0);
}

TEST(ParseDouble, ReadsTheSmallestAndTheLargest) {
  EXPECT_EQ(ParseDouble("1.7976931348623157e308"), std::numeric_limits<double>::max());
  EXPECT_EQ(ParseDouble("2.2250738585072014e-308"), std::numeric_limits<double>::min());
  EXPECT_EQ(ParseDouble("4.9406564584124654e-324"), std::numeric_limits<double>::denorm_min());
}

// Values beside which a careless routine errs: halves between neighbours, long mantissas, the ends
// of the short way.
TEST(ParseDouble, RoundsCorrectly) {
  const std::vector<DoubleCase> cases = {
      {"9007199254740992", 9007199254740992.0},
      {"9007199254740993", 9007199254740992.0},
      {"9007199254740993.0000000000000000000000000000000000000001", 9007199254740994.0},
      {"9007199254740995", 9007199254740996.0},
      {"0.1", 0.1},
      {"0.3", 0.3},
      {"2.2250738585072011e-308", 0x0.fffffffffffffp-1022},
      {"6.02214076000000012345678901234567890e23", 6.02214076e23},
      {"123456789012345678", 123456789012345680.0},
      {"0.000000000000000000001", 1e-21},
      {"9.007199254740991", 9.007199254740991},
      {"90071992547409.93", 90071992547409.93},
  };
  for (const DoubleCase& c : cases) {
    EXPECT_EQ(test::BitCast<std::uint64_t>(ParseDouble(c.text)),
              test::BitCast<std::uint64_t>(c.value))
        << c.text;
  }
}

// That of MinGW gives a text without a number the sign that it begins with.
double StandardValue(const std::string& text) {
  char* end = nullptr;
  const double value = std::strtod(text.c_str(), &end);
  return end == text.c_str() ? 0.0 : value;
}

void ExpectLikeTheStandardLibrary(const std::string& text) {
  ASSERT_EQ(test::BitCast<std::uint64_t>(ParseDouble(text)),
            test::BitCast<std::uint64_t>(StandardValue(text)))
      << text;
}

TEST(ParseDouble, AgreesWithTheStandardLibraryOnDecimalsOfMotionFiles) {
  std::mt19937_64 random(20240601);
  std::uniform_real_distribution<double> value(-5000.0, 5000.0);
  std::uniform_int_distribution<int> decimals(0, 12);
  for (int round = 0; round < 20000; ++round) {
    char text[64];
    std::snprintf(text, sizeof text, "%.*f", decimals(random), value(random));
    ExpectLikeTheStandardLibrary(text);
  }
}

TEST(ParseDouble, AgreesWithTheStandardLibraryOnAnyBits) {
  std::mt19937_64 random(20240602);
  std::uniform_int_distribution<int> digits(1, 40);
  for (int round = 0; round < 20000; ++round) {
    const double value = test::BitCast<double>(random());
    if (!std::isfinite(value)) continue;
    char text[128];
    std::snprintf(text, sizeof text, "%.*e", digits(random), value);
    ExpectLikeTheStandardLibrary(text);
  }
}

TEST(ParseDouble, AgreesWithTheStandardLibraryOnHugeMantissas) {
  std::mt19937_64 random(20240603);
  std::uniform_int_distribution<int> digit('0', '9');
  std::uniform_int_distribution<int> length(1, 900);
  std::uniform_int_distribution<int> exponent(-1000, 400);
  for (int round = 0; round < 2000; ++round) {
    std::string text;
    const int size = length(random);
    const int point = length(random);
    for (int index = 0; index < size; ++index) {
      if (index == point) text += '.';
      text += static_cast<char>(digit(random));
    }
    ExpectLikeTheStandardLibrary(text + "e" + std::to_string(exponent(random)));
  }
}

// Texts that nobody would write, most of them torn: signs, points and exponents anywhere.
TEST(ParseDouble, AgreesWithTheStandardLibraryOnTornNumbers) {
  std::mt19937_64 random(20240605);
  const std::string_view characters = "012345678901234567890123456789..eE+-";
  for (int round = 0; round < 50000; ++round) {
    std::string text(1 + random() % 24, ' ');
    for (char& character : text) character = characters[random() % characters.size()];
    ExpectLikeTheStandardLibrary(text);
  }
}

struct EndCase {
  std::string_view text;
  double value;
  std::size_t used;
};

TEST(ReadDouble, TellsWhereTheNumberEnds) {
  const std::vector<EndCase> cases = {
      {"", 0.0, 0},        {"1.5\t2", 1.5, 3}, {"-1.5 ", -1.5, 4}, {"1e5x", 1e5, 3},
      {"1ex", 1.0, 1},     {"1e+ ", 1.0, 1},   {"nan", 0.0, 0},    {"-", 0.0, 0},
      {"+x", 0.0, 0},      {" 1", 0.0, 0},     {"0x10", 0.0, 1},   {"1e999 ", kInfinity, 5},
      {"1e-999,", 0.0, 6}, {"--5", 0.0, 0},    {".5.5", 0.5, 2},   {"1.", 1.0, 2},
      {".", 0.0, 0},       {"12,5", 12.0, 2},
  };
  for (const EndCase& c : cases) {
    const char* const first = c.text.data();
    const LeadingDouble number = ReadDouble(first, first + c.text.size());
    EXPECT_EQ(number.value, c.value) << c.text;
    EXPECT_EQ(number.end - first, static_cast<std::ptrdiff_t>(c.used)) << c.text;
  }
}

TEST(ReadDouble, StaysWithinItsCharacters) {
  const std::string text = "123456";
  EXPECT_EQ(ReadDouble(text.data(), text.data() + 3).value, 123.0);
  const std::string exponent = "1e10";
  EXPECT_EQ(ReadDouble(exponent.data(), exponent.data() + 2).value, 1.0);
}

TEST(FormatInt, PrintsPlainDecimals) {
  EXPECT_EQ(FormatInt(0), "0");
  EXPECT_EQ(FormatInt(-1), "-1");
  EXPECT_EQ(FormatInt(1234567), "1234567");
  EXPECT_EQ(FormatInt(std::numeric_limits<std::int32_t>::min()), "-2147483648");
}

TEST(FormatDouble, PrintsSixDecimalsUnlessTold) {
  EXPECT_EQ(FormatDouble(0.0), "0.000000");
  EXPECT_EQ(FormatDouble(1.5), "1.500000");
  EXPECT_EQ(FormatDouble(-0.0), "-0.000000");
  EXPECT_EQ(FormatDouble(1.0 / 3.0), "0.333333");
  EXPECT_EQ(FormatDouble(1e20), "100000000000000000000.000000");
}

TEST(FormatDouble, PrintsAsManyDecimalsAsAsked) {
  EXPECT_EQ(FormatDouble(2.5, 2), "2.50");
  EXPECT_EQ(FormatDouble(1.1, 2), "1.10");
  EXPECT_EQ(FormatDouble(2.5, 0), "2");
  EXPECT_EQ(FormatDouble(0.125, 2), "0.12");
  EXPECT_EQ(FormatDouble(0.375, 2), "0.38");
  EXPECT_EQ(FormatDouble(1.0, 20), "1.00000000000000000000");
}

TEST(FormatDouble, PrintsTheLongestNumbers) {
  EXPECT_EQ(FormatDouble(std::numeric_limits<double>::lowest(), 20).size(), 1u + 309u + 1u + 20u);
  EXPECT_EQ(FormatDouble(kInfinity), "inf");
  EXPECT_EQ(FormatDouble(-kInfinity), "-inf");
}

TEST(FormatDouble, AgreesWithTheStandardLibrary) {
  std::mt19937_64 random(20240604);
  std::uniform_int_distribution<int> decimals(0, 20);
  for (int round = 0; round < 20000; ++round) {
    const double value = test::BitCast<double>(random());
    if (!std::isfinite(value)) continue;
    const int count = decimals(random);
    char text[400];
    std::snprintf(text, sizeof text, "%.*f", count, value);
    ASSERT_EQ(FormatDouble(value, count), text);
  }
}

struct ShortestCase {
  double value;
  std::string_view text;
};

TEST(FormatShortest, TakesTheFewestCharacters) {
  const std::vector<ShortestCase> cases = {
      {0.0, "0"},
      {-0.0, "-0"},
      {1.0, "1"},
      {-1.5, "-1.5"},
      {0.1, "0.1"},
      {1e22, "1e+22"},
      {1e-7, "1e-07"},
      {1.0 / 3.0, "0.3333333333333333"},
      {100.0, "100"},
      {123456.0, "123456"},
      {kInfinity, "inf"},
      {-kInfinity, "-inf"},
      {-std::numeric_limits<double>::min(), "-2.2250738585072014e-308"},
      {std::numeric_limits<double>::denorm_min(), "5e-324"},
  };
  for (const ShortestCase& c : cases) EXPECT_EQ(FormatShortest(c.value), c.text);
}

TEST(FormatShortest, NeedsFewerDigitsInSinglePrecision) {
  EXPECT_EQ(FormatShortest(0.1F), "0.1");
  EXPECT_EQ(FormatShortest(static_cast<double>(0.1F)), "0.10000000149011612");
  EXPECT_EQ(FormatShortest(std::numeric_limits<float>::denorm_min()), "1e-45");
}

TEST(FormatShortest, ReadsBackAsTheSameValue) {
  std::mt19937_64 random(20240606);
  for (int round = 0; round < 20000; ++round) {
    const double value = test::BitCast<double>(random());
    if (!std::isfinite(value)) continue;
    const std::string text = FormatShortest(value);
    ASSERT_EQ(test::BitCast<std::uint64_t>(ParseDouble(text)), test::BitCast<std::uint64_t>(value))
        << text;
  }
}

}  // namespace
}  // namespace orvane
