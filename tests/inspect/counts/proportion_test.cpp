#include "inspect/counts/proportion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using orvane::MadeUpFrames;
using orvane::WhyOutOfProportion;

constexpr std::int64_t kLargest = 9'223'372'036'854'775'807;

struct Case {
  const char* name;
  MadeUpFrames made_up;
  std::string why;  // empty: in proportion
};

class ProportionTest : public testing::TestWithParam<Case> {};

TEST_P(ProportionTest, IsJudgedByWhatIsMadeUpAndWhatIsHeld) {
  EXPECT_EQ(WhyOutOfProportion(GetParam().made_up), GetParam().why);
}

// Frames, of whom each, how many these are, what is held, and the deletions of each of them.
INSTANTIATE_TEST_SUITE_P(
    Frames, ProportionTest,
    testing::Values(
        Case{"Nothing", {0, "segment", 50, 50, 160}, ""},
        Case{"OfNobody", {4'000'000'000, "marker", 0, 0, 80}, ""},
        Case{"AMillion", {20'000, "segment", 50, 50, 0}, ""},
        Case{"OneMoreThanAMillion",
             {1'000'001, "bone", 1, 3, 0},
             "1000001 frames of 1 bone would be made up, and 3 are held"},
        Case{"OneFrame",
             {1, "marker", 600'000, 0, 900},
             "540000000 deletions of keys would clear 1 frame of 600000 markers, and 500000000 "
             "are the most"},
        Case{"MoreThanAMillion",
             {20'001, "segment", 50, 50, 0},
             "1000050 frames of 50 segments would be made up, and 50 are held"},
        Case{"TenTimesWhatIsHeld", {40'000, "marker", 50, 200'000, 0}, ""},
        Case{"MoreThanTenTimes",
             {40'000, "marker", 50, 199'999, 0},
             "2000000 frames of 50 markers would be made up, and 199999 are held"},
        Case{"OfNothing",
             {100'000, "marker", 286, 0, 0},
             "28600000 frames of 286 markers would be made up, and 0 are held"},
        Case{"BeyondAllNumbers",
             {4'294'967'295, "segment", kLargest, 1, 9600},
             "9223372036854775807 frames of 9223372036854775807 segments would be made up, and 1 "
             "are held"},
        Case{"BeyondAllNumbersButHeld", {kLargest, "segment", kLargest, kLargest, 0}, ""}),
    [](const auto& test_case) { return test_case.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Deletions, ProportionTest,
    testing::Values(
        Case{"FiveHundredMillion", {1000, "segment", 100, 100, 5000}, ""},
        Case{"MoreThanFiveHundredMillion",
             {1000, "segment", 100, 100, 5001},
             "500100000 deletions of keys would clear 1000 frames of 100 segments, and 500000000 "
             "are the most"},
        Case{"HoweverMuchIsHeld",
             {100'000, "marker", 2, 9'000'000, 4800},
             "960000000 deletions of keys would clear 100000 frames of 2 markers, and 500000000 "
             "are the most"}),
    [](const auto& test_case) { return test_case.param.name; });

TEST(Proportion, TenThousandBonesMoreThanSegmentsMayBeMade) {
  EXPECT_EQ(orvane::WhyListedTooOften(18, 18), "");
  EXPECT_EQ(orvane::WhyListedTooOften(18, 10'018), "");
  EXPECT_EQ(orvane::WhyListedTooOften(18, 10'019),
            "The hierarchy would become 10019 or more bones of 18 segments");
  EXPECT_EQ(orvane::WhyListedTooOften(1'000'000, 1'000'000), "");
}

TEST(ProportionOfBytesTest, CountsOneFrameAndOneMarker) {
  EXPECT_EQ(orvane::WhyTooShort(10, 1, 5'000'001),
            "The file is far too short for 1 frame of 5000001 markers");
  EXPECT_EQ(orvane::WhyTooShort(10, 5'000'001, 1),
            "The file is far too short for 5000001 frames of 1 marker");
}

}  // namespace
