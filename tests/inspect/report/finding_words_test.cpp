#include "inspect/report/finding_words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "inspect/check/htr_rules.h"
#include "inspect/check/mnm_rules.h"
#include "inspect/check/trc_rules.h"
#include "inspect/report/apply_rules.h"
#include "inspect/report/cut_rules.h"
#include "inspect/report/export_rules.h"
#include "inspect/report/rewrite_rules.h"
#include "tests/support/files.h"

namespace {

using orvane::Action;
using orvane::FindingMeaning;
using orvane::FindingRule;
using orvane::FindingSeverity;
using orvane::FindMeaning;
using orvane::kAllActions;

std::vector<FindingRule> AllRules() {
  std::vector<FindingRule> all;
  const auto add = [&all](const auto& rules) { all.insert(all.end(), rules.begin(), rules.end()); };
  add(orvane::htr::kRules);
  add(orvane::trc::kRules);
  add(orvane::mnm::kRules);
  return all;
}

// Of what is found in a scene, and the action that it is found for.
std::vector<std::pair<FindingRule, Action>> RulesOfScenes() {
  std::vector<std::pair<FindingRule, Action>> rules;
  for (const FindingRule& rule : orvane::apply::kRules) rules.emplace_back(rule, Action::kApply);
  for (const FindingRule& rule : orvane::cutting::kRules) rules.emplace_back(rule, Action::kApply);
  for (const FindingRule& rule : orvane::exporting::kRules) {
    rules.emplace_back(rule, Action::kExport);
  }
  for (const FindingRule& rule : orvane::rewriting::kRules) {
    rules.emplace_back(rule, Action::kRewrite);
  }
  return rules;
}

std::vector<FindingMeaning> AllWords() {
  std::vector<FindingMeaning> all;
  for (const auto& words :
       {orvane::HtrFindingMeanings(), orvane::TrcFindingMeanings(), orvane::MnmFindingMeanings(),
        orvane::ApplyFindingMeanings(), orvane::CutFindingMeanings(),
        orvane::ExportFindingMeanings(), orvane::RewriteFindingMeanings()}) {
    all.insert(all.end(), words.begin(), words.end());
  }
  return all;
}

TEST(FindingMeanings, AreThereForEveryCodeAndForNoOther) {
  std::set<std::string_view> codes;
  for (const FindingRule& rule : AllRules()) {
    EXPECT_NE(FindMeaning(rule.code), nullptr) << rule.code;
    codes.insert(rule.code);
  }
  for (const auto& [rule, action] : RulesOfScenes()) {
    EXPECT_NE(FindMeaning(rule.code), nullptr) << rule.code;
    codes.insert(rule.code);
  }
  for (const FindingMeaning& words : AllWords()) {
    EXPECT_EQ(codes.erase(words.code), 1U) << words.code;
  }
  EXPECT_EQ(FindMeaning("htr-nothing"), nullptr);
}

TEST(FindingMeanings, OfALookAtAFileAreAsBadAsTheCheckSays) {
  for (const FindingRule& rule : AllRules()) {
    EXPECT_EQ(FindMeaning(rule.code)->effects[Action::kInspect].severity, rule.severity)
        << rule.code;
  }
}

TEST(FindingMeanings, OfScenesAreAsBadAsTheCheckSays) {
  for (const auto& [rule, action] : RulesOfScenes()) {
    EXPECT_EQ(FindMeaning(rule.code)->effects[action].severity, rule.severity) << rule.code;
  }
}

TEST(FindingMeanings, AreSentences) {
  for (const FindingMeaning& words : AllWords()) {
    for (const char* const cause : {words.one, words.many}) {
      if (cause == nullptr) continue;
      EXPECT_FALSE(std::string_view(cause).ends_with('.')) << words.code << ": one is added";
    }
    for (const Action action : kAllActions) {
      const char* const consequence = words.effects[action].consequence;
      if (consequence == nullptr) continue;
      const char last = std::string_view(consequence).back();
      const bool ends_with_another = std::string_view(consequence).ends_with("{scene}");
      EXPECT_TRUE(last == '.' || last == '?' || ends_with_another) << words.code;
      EXPECT_TRUE(words.effects[action].severity.has_value()) << words.code;
    }
  }
}

// The table of the page, as the program has it.
std::string PageRow(const FindingMeaning& words) {
  std::string row = "| `" + std::string(words.code) + "` |";
  for (const Action action : kAllActions) {
    const auto& severity = words.effects[action].severity;
    row += " " + (severity ? std::string(SeverityName(*severity)) : "") + " |";
  }
  return row;
}

TEST(FindingsPage, HasARowForEveryCodeAndNoOther) {
  const std::string page = test::ReadFile(ORVANE_SOURCE_DIR "/docs/findings.md");
  std::size_t rows = 0;
  for (std::size_t at = page.find("\n| `"); at != std::string::npos;
       at = page.find("\n| `", at + 1))
    ++rows;
  for (const FindingMeaning& words : AllWords()) {
    EXPECT_THAT(page, testing::HasSubstr("\n" + PageRow(words)));
  }
  EXPECT_EQ(rows, AllWords().size());
}

}  // namespace
