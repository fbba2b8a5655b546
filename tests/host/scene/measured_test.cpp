#include "host/scene/measured.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <string>
#include <vector>

#include "host/scene/recording.h"

namespace host {

void PrintTo(const Gap& gap, std::ostream* out) { *out << gap.first << " to " << gap.last; }

namespace {

constexpr TimeValue kFirstTick = std::numeric_limits<TimeValue>::min();
constexpr TimeValue kLastTick = std::numeric_limits<TimeValue>::max();

struct LaterImport {
  std::string name;
  std::vector<Gap> known;
  Gap span;
  std::vector<Gap> later;
  std::vector<Gap> result;
};

class MeasuredByALaterImport : public testing::TestWithParam<LaterImport> {};

TEST_P(MeasuredByALaterImport, IsWhatItFoundAndWhatLiesAround) {
  Measured measured{true, GapManner::kHold, GetParam().known};
  measured.Replace(GetParam().span, GetParam().later);
  EXPECT_EQ(measured.gaps, GetParam().result);
  EXPECT_TRUE(AreInOrder(measured.gaps));
  EXPECT_EQ(measured.manner, GapManner::kHold);
}

const LaterImport kLaterImports[] = {
    {"onto_nothing", {}, {0, 100}, {{10, 20}}, {{10, 20}}},
    {"without_gaps_within", {{10, 20}, {30, 40}}, {0, 100}, {}, {}},
    {"around", {{0, 10}, {90, 100}}, {20, 80}, {{30, 40}}, {{0, 10}, {30, 40}, {90, 100}}},
    {"cutting_both_ends", {{0, 20}, {80, 100}}, {10, 90}, {}, {{0, 9}, {91, 100}}},
    {"inside_one_gap", {{0, 100}}, {40, 60}, {{50, 50}}, {{0, 39}, {50, 50}, {61, 100}}},
    {"at_one_tick", {{0, 100}}, {40, 40}, {{40, 40}}, {{0, 39}, {40, 40}, {41, 100}}},
    {"up_to_its_borders", {{0, 9}, {21, 30}}, {10, 20}, {}, {{0, 9}, {21, 30}}},
    {"over_all_time",
     {{kFirstTick, 0}, {10, kLastTick}},
     {kFirstTick, kLastTick},
     {{1, 2}},
     {{1, 2}}},
};

INSTANTIATE_TEST_SUITE_P(Is, MeasuredByALaterImport, testing::ValuesIn(kLaterImports),
                         [](const auto& import) { return import.param.name; });

TEST(MeasuredNode, IsMissingFromTheFirstToTheLastTickOfAGap) {
  const Measured measured{true, GapManner::kHide, {{10, 20}, {30, 30}}};
  for (const TimeValue tick : {10, 15, 20, 30}) EXPECT_TRUE(measured.IsMissing(tick)) << tick;
  for (const TimeValue tick : {kFirstTick, 9, 21, 29, 31, kLastTick}) {
    EXPECT_FALSE(measured.IsMissing(tick)) << tick;
  }
}

TEST(MeasuredNode, HasGapsInOrder) {
  EXPECT_TRUE(AreInOrder({}));
  EXPECT_TRUE(AreInOrder({{5, 5}, {6, 9}}));
  EXPECT_FALSE(AreInOrder({{5, 4}}));
  EXPECT_FALSE(AreInOrder({{5, 6}, {6, 9}}));
  EXPECT_FALSE(AreInOrder({{10, 20}, {0, 5}}));
}

TEST(Rates, AreInLowestTermsWhenPositiveAndReduced) {
  EXPECT_TRUE(IsInLowestTerms({2997, 50}));
  EXPECT_TRUE(IsInLowestTerms({1, kLargestInRate}));
  for (const Rate& rate : {Rate{5994, 100}, Rate{0, 1}, Rate{1, 0}, Rate{-1, 1}, Rate{1, -1},
                           Rate{kLargestInRate + 1, 1}}) {
    EXPECT_FALSE(IsInLowestTerms(rate)) << rate.numerator << "/" << rate.denominator;
  }
}

}  // namespace
}  // namespace host
