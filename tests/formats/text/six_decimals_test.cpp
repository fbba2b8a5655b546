#include "formats/text/six_decimals.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/printed_values.h"

namespace orvane {
namespace {

std::string Written(double value) {
  std::array<char, kLongestSixDecimals> buffer{};
  return std::string(buffer.data(), WriteSixDecimals(value, buffer.data()));
}

struct WrittenCase {
  double value;
  std::string_view text;
};

TEST(SixDecimals, ShowTheNumberInFixedNotation) {
  const std::vector<WrittenCase> cases = {
      {0.0, "0.000000"},
      {1.0, "1.000000"},
      {-1.0, "-1.000000"},
      {950.0, "950.000000"},
      {12.5, "12.500000"},
      {-359.999999, "-359.999999"},
      {0.1 + 0.2, "0.300000"},
      {1.0 / 3.0, "0.333333"},
      {2.0 / 3.0, "0.666667"},
      {9.0, "9.000000"},
      {10.0, "10.000000"},
      {99.0, "99.000000"},
      {100.0, "100.000000"},
      {123456.789, "123456.789000"},
      {999999.999999, "999999.999999"},
  };
  for (const WrittenCase& c : cases) EXPECT_EQ(Written(c.value), c.text);
}

TEST(SixDecimals, KeepTheSignOfZeroAndOfWhatIsTooSmallToShow) {
  EXPECT_EQ(Written(-0.0), "-0.000000");
  EXPECT_EQ(Written(-1e-9), "-0.000000");
  EXPECT_EQ(Written(-1e-300), "-0.000000");
  EXPECT_EQ(Written(1e-9), "0.000000");
  EXPECT_EQ(Written(std::numeric_limits<double>::denorm_min()), "0.000000");
}

TEST(SixDecimals, RoundTiesToTheEvenDigit) {
  // Half a millionth is no double; these fractions of two are, and end in the seventh decimal.
  EXPECT_EQ(Written(0.0078125), "0.007812");
  EXPECT_EQ(Written(-0.0078125), "-0.007812");
  EXPECT_EQ(Written(0.0234375), "0.023438");
  EXPECT_EQ(Written(1.0078125), "1.007812");
  EXPECT_EQ(Written(999999.0234375), "999999.023438");
}

TEST(SixDecimals, RoundNumbersBesideATieToTheirOwnSide) {
  for (const double tie : {0.0078125, 0.0234375, 100.0078125, 4095.9921875}) {
    for (const double value : {std::nextafter(tie, 0.0), tie, std::nextafter(tie, 1e9)}) {
      EXPECT_EQ(Written(value), test::AsTheLibraryPrints(value));
      EXPECT_EQ(Written(-value), test::AsTheLibraryPrints(-value));
    }
  }
}

TEST(SixDecimals, CarryIntoTheWholeDigits) {
  EXPECT_EQ(Written(0.9999996), "1.000000");
  EXPECT_EQ(Written(-9.9999999), "-10.000000");
  EXPECT_EQ(Written(99.9999995001), "100.000000");
  EXPECT_EQ(Written(999998.9999999), "999999.000000");
  EXPECT_EQ(Written(999999.9999999), "1000000.000000");
}

TEST(SixDecimals, ShowHugeNumbersInFull) {
  EXPECT_EQ(Written(1e6), "1000000.000000");
  EXPECT_EQ(Written(-123456789.125), "-123456789.125000");
  EXPECT_EQ(Written(1e20), "100000000000000000000.000000");
  EXPECT_EQ(Written(1e300), test::AsTheLibraryPrints(1e300));
  EXPECT_EQ(Written(1e300).size(), 308u);
}

TEST(SixDecimals, FitTheRoomThatIsAskedFor) {
  const double lowest = std::numeric_limits<double>::lowest();
  EXPECT_EQ(Written(lowest), test::AsTheLibraryPrints(lowest));
  EXPECT_EQ(Written(lowest).size(), kLongestSixDecimals);
}

TEST(SixDecimals, NameWhatIsNoNumber) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(Written(kInfinity), "inf");
  EXPECT_EQ(Written(-kInfinity), "-inf");
  EXPECT_EQ(Written(std::copysign(kNan, 1.0)), "nan");
  EXPECT_EQ(Written(std::copysign(kNan, -1.0)), "-nan");
}

TEST(SixDecimals, AgreeWithTheLibraryOnNumbersOfEveryKind) {
  test::PrintedValues values(20240701);
  for (int round = 0; round < 50'000; ++round) {
    const double value = values.Next();
    ASSERT_EQ(Written(value), test::AsTheLibraryPrints(value));
  }
}

}  // namespace
}  // namespace orvane
