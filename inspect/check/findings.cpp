#include "inspect/check/findings.h"

#include <algorithm>
#include <cassert>
#include <tuple>
#include <utility>

#include "formats/text/numbers.h"

namespace orvane {
namespace {

constexpr std::size_t kLongestQuote = 60;

bool ContinuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

bool StandsBefore(const Finding& left, const Finding& right) {
  return std::tie(left.line, left.column) < std::tie(right.line, right.column);
}

Finding NewFinding(const FindingRule& rule, const FindingPlace& place, FindingWords words) {
  return {rule,
          place.line,
          place.column,
          std::move(words.found),
          std::move(words.expected),
          std::move(words.effect),
          std::move(words.when_converted),
          std::move(words.in_scene)};
}

}  // namespace

std::string_view SeverityName(FindingSeverity severity) {
  constexpr std::array<std::string_view, kFindingSeverities> kNames = {"note", "warning", "error"};
  return kNames[static_cast<std::size_t>(severity)];
}

bool FindingList::CountAndAskForMore(const FindingRule& rule, bool is_behind) {
  Total& total = TotalOf(rule);
  ++total.count;
  if (is_behind) return ++total.behind <= kMostKeptOfARule;
  return total.count - total.behind <= kMostKeptOfARule;
}

void FindingList::Keep(const FindingRule& rule, const FindingPlace& place, FindingWords words) {
  assert((place.line == 0) == (place.column == 0));
  kept_.push_back(NewFinding(rule, place, std::move(words)));
  kept_.back().is_behind = IsBehind(place);
}

void FindingList::Append(const FindingList& later) {
  for (const Finding& finding : later.kept_) {
    if (CountAndAskForMore(finding.rule, finding.is_behind)) kept_.push_back(finding);
  }
  for (const auto& [code, total] : later.totals_) {
    const std::size_t behind = total.behind - std::min(total.behind, kMostKeptOfARule);
    Total& sum = TotalOf({code, total.severity});
    sum.count += total.LeftOut();
    sum.behind += behind;
  }
}

void FindingList::Remove(const FindingRule& rule) {
  std::erase_if(kept_, [&rule](const Finding& finding) { return finding.rule.code == rule.code; });
  totals_.erase(rule.code);
}

void FindingList::ReplaceAll(const FindingRule& cause, const FindingPlace& place,
                             FindingWords words) {
  kept_.clear();
  totals_.clear();
  Add(cause, place, std::move(words));
}

std::vector<Finding> FindingList::Sorted() const {
  std::vector<Finding> findings = kept_;
  std::stable_sort(findings.begin(), findings.end(), StandsBefore);
  return findings;
}

std::size_t FindingList::Count(FindingSeverity severity) const {
  std::size_t count = 0;
  for (const auto& [code, total] : totals_) {
    if (total.severity == severity) count += total.count;
  }
  return count;
}

std::string Quote(std::string_view text) {
  if (text.empty()) return "nothing";
  std::size_t end = std::min(text.size(), kLongestQuote);
  if (end == text.size()) return '"' + std::string(text) + '"';
  while (end > 0 && ContinuesCharacter(text[end])) --end;
  return '"' + std::string(text.substr(0, end)) + "...\"";
}

std::string CountOf(std::size_t count, std::string_view noun) {
  const std::string number = FormatInt(static_cast<std::int64_t>(count));
  return number + " " + std::string(noun) + (count == 1 ? "" : "s");
}

}  // namespace orvane
