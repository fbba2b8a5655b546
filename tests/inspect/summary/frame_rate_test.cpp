#include "inspect/summary/frame_rate.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/trc_text.h"

namespace orvane {

void PrintTo(const FrameRate& rate, std::ostream* out) {
  *out << rate.numerator << '/' << rate.denominator;
}

namespace {

TEST(FrameRate, IsTheDecimalFractionOfTheText) {
  const struct {
    const char* text;
    FrameRate rate;
  } rows[] = {{"60", {60, 1}},
              {"59.94", {2997, 50}},
              {"119.88", {2997, 25}},
              {"29.97", {2997, 100}},
              {"250.000000", {250, 1}},
              {"0.5", {1, 2}},
              {"+.25", {1, 4}},
              {" 100.", {100, 1}},
              {"5.994e1", {2997, 50}},
              {"6E3", {6000, 1}},
              {"12e-1", {6, 5}},
              {"59,94", {59, 1}},
              {"120 Hz", {120, 1}},
              {"0000000000000000000060", {60, 1}},
              {"0.0000000000000000", {0, 0}},
              {"9007199254740992", {0, 0}},
              {"1e15", {1'000'000'000'000'000, 1}}};
  for (const auto& [text, rate] : rows) {
    const auto parsed = ParseFrameRate(text);
    if (rate.numerator == 0) {
      EXPECT_FALSE(parsed.has_value()) << text;
    } else {
      EXPECT_EQ(parsed, rate) << text;
    }
  }
}

TEST(FrameRate, LeavesOutDigitsThatDoNotFit) {
  const auto rate = ParseFrameRate("59.94005994005994005994");
  ASSERT_TRUE(rate.has_value());
  EXPECT_NEAR(static_cast<double>(rate->numerator) / static_cast<double>(rate->denominator),
              59.94005994005994, 1e-12);
}

TEST(FrameRate, IsPositiveOrNone) {
  for (const char* text : {"", "0", "0.0", "-60", "abc", "e5", ".", "1e999", "1e-999", "1e20"}) {
    EXPECT_FALSE(ParseFrameRate(text).has_value()) << text;
  }
}

TEST(FrameRate, IsReadFromTheHeaderOfAFile) {
  test::TrcText text{.markers = {"Head"}, .frames = {{"1\t2\t3"}}};
  text.data_rate = "59.94";
  const auto of_trc = [](const std::string& bytes) {
    MemorySource source(bytes);
    return FrameRateOfTrc(source);
  };
  const auto of_htr = [](const std::string& bytes) {
    MemorySource source(bytes);
    return FrameRateOfHtr(source);
  };
  EXPECT_EQ(of_trc(text.Text()), (FrameRate{2997, 50}));
  EXPECT_EQ(of_trc("nothing"), std::nullopt);
  EXPECT_EQ(of_htr("[Header]\nDataFrameRate 60\nDataFrameRate 119.88\n"), (FrameRate{2997, 25}));
  EXPECT_EQ(of_htr("[Header]\nNumFrames 3\n"), std::nullopt);
}

}  // namespace
}  // namespace orvane
