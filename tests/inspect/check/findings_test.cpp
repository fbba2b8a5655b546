#include "inspect/check/findings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <tuple>
#include <vector>

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

std::vector<std::string> TextsOf(const FindingList& findings) {
  std::vector<std::string> texts;
  for (const orvane::Finding& finding : findings.Sorted()) texts.push_back(finding.found);
  return texts;
}

// What a list holds, whatever way it came there.
auto Contents(const FindingList& findings) {
  std::vector<std::tuple<std::string_view, std::size_t, std::size_t, std::size_t>> totals;
  for (const auto& [code, total] : findings.Totals()) {
    totals.emplace_back(code, total.count, total.behind, total.LeftOut());
  }
  return std::tuple(totals, TextsOf(findings));
}

// Adds a finding on each line from `first` to `last`, of which those from line 31 on are behind the
// announced frames.
void AddOnLines(std::size_t first, std::size_t last, FindingList& findings) {
  findings.SetFirstLineBehind(31);
  for (std::size_t line = first; line <= last; ++line) {
    findings.Add(kRule, FindingPlace{line, 1}, {std::to_string(line), "", ""});
    findings.Add(kOther, FindingPlace{line, 1}, {"other " + std::to_string(line), "", ""});
  }
}

TEST(FindingList, AppendsAnotherAsIfItsFindingsWereAdded) {
  for (const std::size_t end : {0U, 1U, 7U, 25U, 40U, 55U, 70U}) {
    FindingList whole;
    AddOnLines(1, 70, whole);
    FindingList first;
    AddOnLines(1, end, first);
    FindingList later;
    AddOnLines(end + 1, 70, later);
    first.Append(later);
    EXPECT_EQ(Contents(first), Contents(whole)) << end;
  }
}

TEST(FindingList, CountsMoreThanItKeeps) {
  FindingList one_by_one;
  AddOnLines(1, 70, one_by_one);
  FindingList findings;
  AddOnLines(1, 20, findings);
  findings.AddMore(kRule, FindingPlace{30, 1}, 10);
  findings.AddMore(kOther, FindingPlace{30, 1}, 10);
  AddOnLines(31, 50, findings);
  findings.AddMore(kRule, FindingPlace{51, 1}, 20);
  findings.AddMore(kOther, FindingPlace{51, 1}, 20);
  EXPECT_EQ(Contents(findings), Contents(one_by_one));
}

TEST(FindingList, TakesBackWhatARuleHasAdded) {
  FindingList findings;
  AddOnLines(1, 2, findings);
  findings.Remove(kOther);
  EXPECT_THAT(TextsOf(findings), ElementsAre("1", "2"));
  EXPECT_EQ(findings.Count(FindingSeverity::kNote), 0U);
  findings.Remove(kRule);
  EXPECT_TRUE(findings.IsEmpty());
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
