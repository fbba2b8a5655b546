#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <variant>

#include "inspect/check/findings.h"

// The table of a kind of file that says what is told of each oddity which its reader meets. `Met`
// is a struct with an oddity and what the texts are made of. Rows and the texts in them live as
// long as the program.

namespace orvane {

// A text of a finding: the same wherever the oddity is met, or made of what was met.
template <typename Met>
using FindingText = std::variant<const char*, std::string (*)(const Met& met)>;

template <typename Oddity, typename Met>
struct OddityRow {
  Oddity oddity;
  FindingRule rule;
  FindingText<Met> found;
  FindingText<Met> expected;
  FindingText<Met> effect;
};

template <typename Met>
[[nodiscard]] std::string TextOf(const FindingText<Met>& text, const Met& met) {
  const auto* const same = std::get_if<const char*>(&text);
  return same != nullptr ? *same : std::get<std::string (*)(const Met&)>(text)(met);
}

// Adds the finding that the row of `met` makes at `place`; none when `rows` have no such row.
template <typename Oddity, typename Met, std::size_t kRows, typename Place>
void AddOddity(const std::array<OddityRow<Oddity, Met>, kRows>& rows, const Met& met,
               const Place& place, FindingList& findings) {
  const auto row = std::find_if(rows.begin(), rows.end(),
                                [&met](const auto& each) { return each.oddity == met.oddity; });
  if (row == rows.end()) return;
  findings.Add(row->rule, place, [&met, &row] {
    return FindingWords{TextOf(row->found, met), TextOf(row->expected, met),
                        TextOf(row->effect, met)};
  });
}

}  // namespace orvane
