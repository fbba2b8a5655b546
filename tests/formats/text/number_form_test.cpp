#include "formats/text/number_form.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include "formats/text/numbers.h"

namespace {

using orvane::NumberForm;

TEST(NumberForm, TheShortestIsReadAsTheSameNumber) {
  std::mt19937_64 random(7);
  for (int count = 0; count < 20000; ++count) {
    const std::uint64_t bits = random();
    double number = 0;
    std::memcpy(&number, &bits, sizeof number);
    if (!std::isfinite(number)) continue;
    const double again = orvane::ParseDouble(NumberForm::Shortest().Text(number));
    EXPECT_EQ(std::memcmp(&again, &number, sizeof number), 0) << number;
  }
}

TEST(NumberForm, TheShortestHasNoDigitsToSpare) {
  EXPECT_EQ(NumberForm::Shortest().Text(0.1), "0.1");
  EXPECT_EQ(NumberForm::Shortest().Text(-12.5), "-12.5");
  EXPECT_EQ(NumberForm::Shortest().Text(1700), "1700");
  EXPECT_EQ(NumberForm::Shortest().Text(1e22), "1e+22");
  EXPECT_EQ(NumberForm::Shortest().Text(-0.0), "-0");
}

TEST(NumberForm, DecimalsAreAsManyAsAskedFor) {
  EXPECT_EQ(NumberForm::Decimals(3).Text(1.0005), "1.000");
  EXPECT_EQ(NumberForm::Decimals(3).Text(2), "2.000");
  EXPECT_EQ(NumberForm::Decimals(0).Text(-3.7), "-4");
  EXPECT_EQ(NumberForm::Decimals(17).Text(-std::numeric_limits<double>::max()).size(), 328U);
}

TEST(NumberForm, WhatIsInfiniteIsReadAsInfinite) {
  const double infinite = std::numeric_limits<double>::infinity();
  for (const NumberForm& form : {NumberForm::Shortest(), NumberForm::Decimals(6)}) {
    EXPECT_EQ(orvane::ParseDouble(form.Text(infinite)), infinite);
    EXPECT_EQ(orvane::ParseDouble(form.Text(-infinite)), -infinite);
    EXPECT_EQ(form.Text(std::nan("")), "0");
  }
}

}  // namespace
