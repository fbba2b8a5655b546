#pragma once

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// What a check finds in a file, whatever its kind. The check of a format has a table of rules, and
// adds a finding for every place where a file goes against one. Lines and columns count from 1,
// columns in bytes. Rules live as long as the program; findings hold copies of what they quote, so
// that the bytes of the file may go. Nothing fails but for want of memory. A list is a value:
// threads may read one together, and each may change its own.

namespace orvane {

enum class FindingSeverity {
  kNote,     // nothing is lost or changed
  kWarning,  // something is lost, or taken for other than it seems to be
  kError,    // the import refuses the file, or makes nothing of it
};
inline constexpr std::size_t kFindingSeverities = 3;

// "note", "warning" or "error".
[[nodiscard]] std::string_view SeverityName(FindingSeverity severity);

struct FindingRule {
  // The format and what is wrong, such as "htr-rate-cut". A code never changes its meaning.
  std::string_view code;
  FindingSeverity severity;
};

// The rule of `code` in a table of them. One that is not there does not compile.
template <std::size_t kSize>
[[nodiscard]] consteval const FindingRule& FindRule(const std::array<FindingRule, kSize>& rules,
                                                    std::string_view code) {
  std::size_t index = 0;
  while (rules.at(index).code != code) ++index;
  return rules[index];
}

struct FindingPlace {
  std::size_t line = 1;    // counted from 1
  std::size_t column = 1;  // in bytes, counted from 1
};

struct FindingWords {
  std::string found;
  std::string expected;
  std::string effect;            // what the import makes of it
  std::string when_converted{};  // what a conversion does; empty when that is the same
  // What a scene makes of it, where that is more than one can see in the file; may be empty.
  std::string in_scene{};
};

struct Finding {
  FindingRule rule;
  std::size_t line = 0;  // as in FindingPlace
  std::size_t column = 0;
  std::string found;  // as in FindingWords
  std::string expected;
  std::string effect;
  std::string when_converted;
  std::string in_scene;
  bool is_behind = false;  // the frames that the header announces, so that it does not come out
};

// Counts all findings and keeps the first ones of every rule, so that a file with an oddity in
// every cell asks for no more memory than any other.
class FindingList {
 public:
  static constexpr std::size_t kMostKeptOfARule = 20;

  // Adds what `rule` says of `place`, which is anything with a line and a column as FindingPlace
  // has them, or both 0 for what has no place in the file. `make_words` is called only when the
  // finding is kept: a file may have one in every cell, and most of them are only counted.
  template <typename Place, std::invocable MakeWords>
  void Add(const FindingRule& rule, const Place& place, const MakeWords& make_words) {
    const FindingPlace at{place.line, place.column};
    if (CountAndAskForMore(rule, IsBehind(at))) Keep(rule, at, make_words());
  }

  // The same where the words are at hand, or made but a few times in a file.
  template <typename Place>
  void Add(const FindingRule& rule, const Place& place, FindingWords&& words) {
    const FindingPlace at{place.line, place.column};
    if (CountAndAskForMore(rule, IsBehind(at))) Keep(rule, at, std::move(words));
  }

  // Counts so many more findings by `rule` that stand there or behind, when as many as are kept
  // have been added.
  template <typename Place>
  void AddMore(const FindingRule& rule, const Place& place, std::size_t count) {
    Total& total = TotalOf(rule);
    total.count += count;
    if (IsBehind({place.line, place.column})) total.behind += count;
  }

  // Adds what `later` holds, as if it was added to this list, in the same order. What is behind the
  // announced frames there, is so here.
  void Append(const FindingList& later);

  // Takes back all findings by `rule`.
  void Remove(const FindingRule& rule);

  // From now on, what is found on line `line` or a later one is behind the frames that the header
  // announces; 0 for no line.
  void SetFirstLineBehind(std::size_t line) { first_line_behind_ = line; }

  // Puts the cause of all findings in their place.
  void ReplaceAll(const FindingRule& cause, const FindingPlace& place, FindingWords words);

  // Those that are kept, by line and column.
  [[nodiscard]] std::vector<Finding> Sorted() const;

  struct Total {
    FindingSeverity severity;
    std::size_t count = 0;
    std::size_t behind = 0;  // how many of them are behind the announced frames
    // So many are kept of those, and of the others.
    [[nodiscard]] std::size_t LeftOut() const {
      return count - std::min(count - behind, kMostKeptOfARule) -
             std::min(behind, kMostKeptOfARule);
    }
  };
  // By code.
  [[nodiscard]] const std::map<std::string_view, Total>& Totals() const { return totals_; }

  [[nodiscard]] std::size_t Count(FindingSeverity severity) const;
  [[nodiscard]] bool IsEmpty() const { return totals_.empty(); }

 private:
  // Counts a finding. Returns whether it is to be kept.
  [[nodiscard]] bool CountAndAskForMore(const FindingRule& rule, bool is_behind);
  [[nodiscard]] Total& TotalOf(const FindingRule& rule) {
    return totals_.try_emplace(rule.code, Total{rule.severity}).first->second;
  }
  [[nodiscard]] bool IsBehind(const FindingPlace& place) const {
    return first_line_behind_ != 0 && place.line >= first_line_behind_;
  }
  void Keep(const FindingRule& rule, const FindingPlace& place, FindingWords words);

  std::size_t first_line_behind_ = 0;
  std::vector<Finding> kept_;
  std::map<std::string_view, Total> totals_;
};

// `text` between quotation marks, cut when it is long; "nothing" when it is empty.
[[nodiscard]] std::string Quote(std::string_view text);

// "1 frame", "2 frames".
[[nodiscard]] std::string CountOf(std::size_t count, std::string_view noun);

}  // namespace orvane
