#include "inspect/check/next_number.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

using orvane::NextNumber;

constexpr std::int64_t kLargest = std::numeric_limits<std::int32_t>::max();

TEST(NextNumber, IsRecognizedAsItIsUsuallyWritten) {
  NextNumber number(0);
  for (int value = 0; value <= 1101; ++value) {
    EXPECT_EQ(number.Value(), value);
    EXPECT_TRUE(number.IsWrittenAs(std::to_string(value))) << value;
    EXPECT_FALSE(number.IsWrittenAs(std::to_string(value + 1))) << value;
    number.Advance();
  }
}

TEST(NextNumber, IsRecognizedInNoOtherForm) {
  const NextNumber number(12);
  for (const char* cell : {"", "1", "012", "+12", "12.0", "12 ", "120", "twelve"}) {
    EXPECT_FALSE(number.IsWrittenAs(cell)) << cell;
  }
}

TEST(NextNumber, IsRecognizedUpToTheLargestOfAFile) {
  NextNumber number(kLargest);
  EXPECT_TRUE(number.IsWrittenAs("2147483647"));
  number.Advance();
  EXPECT_EQ(number.Value(), kLargest + 1);
  EXPECT_FALSE(number.IsWrittenAs("2147483648"));
}

TEST(NextNumber, IsRecognizedFromZeroOn) {
  NextNumber number(-2);
  EXPECT_FALSE(number.IsWrittenAs("-2"));
  EXPECT_FALSE(number.IsWrittenAs(""));
  number.Advance();
  EXPECT_FALSE(number.IsWrittenAs("-1"));
  number.Advance();
  EXPECT_TRUE(number.IsWrittenAs("0"));
  number.Advance();
  EXPECT_TRUE(number.IsWrittenAs("1"));
}

}  // namespace
