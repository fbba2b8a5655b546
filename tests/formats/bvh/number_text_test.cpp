#include "formats/bvh/number_text.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "formats/text/text_buffer.h"

namespace {

using orvane::BvhNumberText;

std::string TextOf(double number, const BvhNumberText& form) {
  std::string all;
  const orvane::TextTaker take = [&all](std::string_view piece) { all += piece; };
  orvane::TextBuffer text(take);
  form.Put(number, text);
  text.HandOver();
  return all;
}

TEST(BvhNumberTextTest, HasTheDecimalsAskedForOrIsTheShortest) {
  EXPECT_EQ(TextOf(-12.3456789, BvhNumberText(6)), "-12.345679");
  EXPECT_EQ(TextOf(-12.3456789, BvhNumberText(3)), "-12.346");
  EXPECT_EQ(TextOf(12.5, BvhNumberText(0)), "12");
  EXPECT_EQ(TextOf(0.1, BvhNumberText()), "0.1");
  EXPECT_EQ(TextOf(1.0 / 3, BvhNumberText()), "0.3333333333333333");
}

TEST(BvhNumberTextTest, ZeroHasNoSign) {
  EXPECT_EQ(TextOf(-0.0, BvhNumberText(6)), "0.000000");
  EXPECT_EQ(TextOf(-1e-9, BvhNumberText(6)), "0.000000");
  EXPECT_EQ(TextOf(-1e-9, BvhNumberText(3)), "0.000");
  EXPECT_EQ(TextOf(-0.0, BvhNumberText()), "0");
  EXPECT_EQ(TextOf(-1e-6, BvhNumberText(6)), "-0.000001");
}

TEST(BvhNumberTextTest, LengthsAreToldToATenMillionthOfTheHeight) {
  EXPECT_EQ(TextOf(1, BvhNumberText::OfLengths(1800)), "1.000000");
  EXPECT_EQ(TextOf(1, BvhNumberText::OfLengths(10)), "1.000000");
  EXPECT_EQ(TextOf(1, BvhNumberText::OfLengths(1.8)), "1.0000000");
  EXPECT_EQ(TextOf(1, BvhNumberText::OfLengths(0.018)), "1.000000000");
  EXPECT_EQ(TextOf(1e-20, BvhNumberText::OfLengths(1e-19)), "1e-20");
}

TEST(BvhNumberTextTest, NoHeightIsAnyHeight) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  for (const double height : {0.0, kInfinity, 1e300}) {
    EXPECT_EQ(TextOf(1, BvhNumberText::OfLengths(height)), "1.000000") << height;
  }
}

TEST(BvhNumberTextTest, VeryLargeNumbersAreWrittenInFull) {
  const double largest = std::numeric_limits<double>::max();
  EXPECT_EQ(TextOf(-largest, BvhNumberText(6)).size(), 317U);
  EXPECT_EQ(TextOf(-largest, BvhNumberText(20)).size(), 331U);
}

}  // namespace
