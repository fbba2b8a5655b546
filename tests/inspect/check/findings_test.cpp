#include "inspect/check/findings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using orvane::FindingList;
using orvane::FindingRule;
using orvane::FindingSeverity;
using testing::ElementsAre;

constexpr FindingRule kRule = {"a-rule", FindingSeverity::kWarning};
constexpr FindingRule kOther = {"another-rule", FindingSeverity::kNote};

TEST(FindingList, IsSortedByPlaceAndKeepsTheOrderOfEquals) {
  FindingList findings;
  findings.Add(kRule, 2, 1)->found = "third";
  findings.Add(kOther, 1, 5)->found = "second";
  findings.Add(kRule, 1, 2)->found = "first";
  findings.Add(kOther, 2, 1)->found = "fourth";
  std::vector<std::string> order;
  for (const orvane::Finding& finding : findings.Sorted()) order.push_back(finding.found);
  EXPECT_THAT(order, ElementsAre("first", "second", "third", "fourth"));
}

TEST(FindingList, KeepsTwentyOfARuleAndCountsThemAll) {
  FindingList findings;
  EXPECT_TRUE(findings.IsEmpty());
  for (std::size_t line = 1; line <= 20; ++line) EXPECT_NE(findings.Add(kRule, line, 1), nullptr);
  EXPECT_EQ(findings.Totals().at("a-rule").LeftOut(), 0U);
  EXPECT_EQ(findings.Add(kRule, 21, 1), nullptr);
  EXPECT_NE(findings.Add(kOther, 21, 1), nullptr);
  EXPECT_EQ(findings.Totals().at("a-rule").count, 21U);
  EXPECT_EQ(findings.Totals().at("a-rule").LeftOut(), 1U);
  EXPECT_EQ(findings.Sorted().size(), 21U);
  EXPECT_EQ(findings.Count(FindingSeverity::kWarning), 21U);
  EXPECT_EQ(findings.Count(FindingSeverity::kNote), 1U);
  EXPECT_EQ(findings.Count(FindingSeverity::kError), 0U);
}

TEST(FindingList, ExplainsErrorsAndDropsTheRest) {
  constexpr FindingRule kError = {"an-error", FindingSeverity::kError};
  constexpr FindingRule kCause = {"a-cause", FindingSeverity::kError};
  FindingList findings;
  for (int count = 0; count < 30; ++count) findings.Add(kRule, 1, 1);
  for (int count = 0; count < 21; ++count) findings.Add(kError, 1, 1);
  findings.ExplainErrors({kCause, 1, 1, "found", "expected", "effect"});
  EXPECT_EQ(findings.Sorted().front().rule.code, "a-cause");
  EXPECT_EQ(findings.Sorted().size(), 21U);
  EXPECT_EQ(findings.Totals().at("an-error").count, 21U);
  EXPECT_EQ(findings.Count(FindingSeverity::kError), 22U);
  EXPECT_EQ(findings.Count(FindingSeverity::kWarning), 0U);
}

TEST(Quote, CutsLongTextBetweenCharacters) {
  EXPECT_EQ(orvane::Quote(""), "nothing");
  EXPECT_EQ(orvane::Quote("59.94"), "\"59.94\"");
  EXPECT_EQ(orvane::Quote(std::string(60, 'x')), '"' + std::string(60, 'x') + '"');
  EXPECT_EQ(orvane::Quote(std::string(61, 'x')), '"' + std::string(60, 'x') + "...\"");
  EXPECT_EQ(orvane::Quote(std::string(59, 'x') + "\xC3\xBC!"),
            '"' + std::string(59, 'x') + "...\"");
}

TEST(CountOf, KnowsThePlural) {
  EXPECT_EQ(orvane::CountOf(0, "frame"), "0 frames");
  EXPECT_EQ(orvane::CountOf(1, "frame"), "1 frame");
  EXPECT_EQ(orvane::CountOf(2, "frame"), "2 frames");
}

}  // namespace
