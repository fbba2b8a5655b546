#include "inspect/check/findings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tuple>

namespace {

using orvane::FindingList;
using orvane::FindingPlace;
using orvane::FindingRule;
using orvane::FindingSeverity;
using orvane::FindingWords;
using testing::ElementsAre;

constexpr FindingRule kRule = {"a-rule", FindingSeverity::kWarning};
constexpr FindingRule kOther = {"another-rule", FindingSeverity::kNote};
constexpr FindingWords (*kWordless)() = [] { return FindingWords{}; };

TEST(FindingList, IsSortedByPlaceAndKeepsTheOrderOfEquals) {
  FindingList findings;
  findings.Add(kRule, FindingPlace{2, 1}, {"third", "", ""});
  findings.Add(kOther, FindingPlace{1, 5}, {"second", "", ""});
  findings.Add(kRule, FindingPlace{1, 2}, {"first", "", ""});
  findings.Add(kOther, FindingPlace{2, 1}, {"fourth", "", ""});
  std::vector<std::string> order;
  for (const orvane::Finding& finding : findings.Sorted()) order.push_back(finding.found);
  EXPECT_THAT(order, ElementsAre("first", "second", "third", "fourth"));
}

TEST(FindingList, KeepsTheWholeFinding) {
  FindingList findings;
  findings.Add(kRule, FindingPlace{3, 7}, [] {
    return FindingWords{"found", "expected", "effect"};
  });
  const std::vector<orvane::Finding> sorted = findings.Sorted();
  ASSERT_EQ(sorted.size(), 1U);
  EXPECT_EQ(sorted[0].rule.code, "a-rule");
  EXPECT_EQ(sorted[0].rule.severity, FindingSeverity::kWarning);
  EXPECT_EQ(sorted[0].line, 3U);
  EXPECT_EQ(sorted[0].column, 7U);
  EXPECT_EQ(sorted[0].found, "found");
  EXPECT_EQ(sorted[0].expected, "expected");
  EXPECT_EQ(sorted[0].effect, "effect");
}

TEST(FindingList, KeepsTwentyOfARuleAndCountsThemAll) {
  FindingList findings;
  EXPECT_TRUE(findings.IsEmpty());
  for (std::size_t line = 1; line <= 20; ++line)
    findings.Add(kRule, FindingPlace{line, 1}, kWordless);
  EXPECT_EQ(findings.Totals().at("a-rule").LeftOut(), 0U);
  findings.Add(kRule, FindingPlace{21, 1}, kWordless);
  findings.Add(kRule, FindingPlace{22, 1}, FindingWords{});
  findings.Add(kOther, FindingPlace{21, 1}, kWordless);
  EXPECT_EQ(findings.Totals().at("a-rule").count, 22U);
  EXPECT_EQ(findings.Totals().at("a-rule").LeftOut(), 2U);
  EXPECT_EQ(findings.Sorted().size(), 21U);
  EXPECT_EQ(findings.Count(FindingSeverity::kWarning), 22U);
  EXPECT_EQ(findings.Count(FindingSeverity::kNote), 1U);
  EXPECT_EQ(findings.Count(FindingSeverity::kError), 0U);
}

TEST(FindingList, MakesNoWordsForWhatItDoesNotKeep) {
  FindingList findings;
  int made = 0;
  for (int count = 0; count < 30; ++count) {
    findings.Add(kRule, FindingPlace{1, 1}, [&made] {
      ++made;
      return FindingWords{};
    });
  }
  EXPECT_EQ(made, 20);
}

TEST(FindingList, PutsTheCauseOfAllInTheirPlace) {
  constexpr FindingRule kCause = {"a-cause", FindingSeverity::kError};
  FindingList findings;
  for (int count = 0; count < 30; ++count) findings.Add(kRule, FindingPlace{1, 1}, kWordless);
  findings.ReplaceAll(kCause, {1, 1}, {"found", "expected", "effect"});
  ASSERT_EQ(findings.Sorted().size(), 1U);
  EXPECT_EQ(findings.Sorted().front().rule.code, "a-cause");
  EXPECT_EQ(findings.Sorted().front().effect, "effect");
  EXPECT_EQ(findings.Count(FindingSeverity::kError), 1U);
  EXPECT_EQ(findings.Totals().size(), 1U);
}

TEST(EndOf, IsBehindTheLastByte) {
  for (const auto& [bytes, line, column] :
       {std::tuple{"", 1U, 1U}, {"a", 1U, 2U}, {"a\n", 2U, 1U}, {"a\r\nbc", 2U, 3U}}) {
    EXPECT_EQ(orvane::EndOf(bytes).line, line) << bytes;
    EXPECT_EQ(orvane::EndOf(bytes).column, column) << bytes;
  }
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
