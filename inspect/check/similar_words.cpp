#include "inspect/check/similar_words.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <utility>

namespace orvane {
namespace {

constexpr std::size_t kMostMistakes = 2;
constexpr std::size_t kLongestWord = 40;
constexpr std::size_t kShortestWord = 5;  // below it, two mistakes make another word
constexpr std::size_t kShortestSwap = 3;  // below it, the letters in another order do

char LowerCase(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool Matches(char left, char right) { return LowerCase(left) == LowerCase(right); }

// Whether the two letters that end there have changed places.
bool AreSwapped(std::string_view left, std::size_t line, std::string_view right,
                std::size_t column) {
  return line > 1 && column > 1 && Matches(left[line - 1], right[column - 2]) &&
         Matches(left[line - 2], right[column - 1]);
}

// Letters to replace, insert or delete between the two, and neighbors to swap (Damerau, 1964), row
// by row.
std::size_t Distance(std::string_view left, std::string_view right) {
  using Row = std::array<std::size_t, kLongestWord + 1>;
  Row before_last{};
  Row last{};
  Row row{};
  for (std::size_t column = 0; column <= right.size(); ++column) row[column] = column;
  for (std::size_t line = 1; line <= left.size(); ++line) {
    before_last = std::exchange(last, row);
    row[0] = line;
    for (std::size_t column = 1; column <= right.size(); ++column) {
      const bool same = Matches(left[line - 1], right[column - 1]);
      row[column] =
          std::min({last[column - 1] + (same ? 0 : 1), last[column] + 1, row[column - 1] + 1});
      if (!AreSwapped(left, line, right, column)) continue;
      row[column] = std::min(row[column], before_last[column - 2] + 1);
    }
  }
  return row[right.size()];
}

bool IsLetter(char character) { return 'a' <= LowerCase(character) && LowerCase(character) <= 'z'; }

// Whether two letters side by side have changed places. Digits that have are another number.
bool HasSwap(std::string_view word, std::string_view meant) {
  if (word.size() != meant.size() || word.size() < kShortestSwap) return false;
  const auto [left, right] = std::mismatch(word.begin(), word.end(), meant.begin(), Matches);
  if (word.end() - left < 2 || !IsLetter(left[0]) || !IsLetter(left[1])) return false;
  return Matches(left[0], right[1]) && Matches(left[1], right[0]) &&
         std::equal(left + 2, word.end(), right + 2, Matches);
}

// How many letters of `meant` are wrong in `word`; nothing when it is that very word, or not like
// it.
std::optional<std::size_t> MistakesIn(std::string_view word, std::string_view meant) {
  if (word == meant || word.size() > kLongestWord || meant.size() > kLongestWord) return {};
  if (word.size() > meant.size() + kMostMistakes || meant.size() > word.size() + kMostMistakes) {
    return {};
  }
  const std::size_t distance = Distance(word, meant);
  const bool is_like = distance == 0 || HasSwap(word, meant) ||
                       (distance <= kMostMistakes && meant.size() >= kShortestWord);
  return is_like ? std::optional(distance) : std::nullopt;
}

bool IsBeginningOf(std::string_view word, std::string_view meant) {
  return word != meant && 2 * word.size() >= meant.size() && meant.substr(0, word.size()) == word;
}

// Behind the subject of a marker's name, as in "walker:LFHD".
std::string_view WithoutSubject(std::string_view name) { return name.substr(name.rfind(':') + 1); }

bool DifferInSubject(std::string_view word, std::string_view meant) {
  const std::string_view left = WithoutSubject(word);
  const std::string_view right = WithoutSubject(meant);
  return word != meant && !left.empty() &&
         std::equal(left.begin(), left.end(), right.begin(), right.end(), Matches);
}

}  // namespace

bool LooksLike(std::string_view word, std::string_view meant) {
  return MistakesIn(word, meant).has_value();
}

std::string_view MostSimilar(std::string_view word, const std::vector<std::string>& words) {
  const auto first_of = [word, &words](const auto& is_meant) -> std::string_view {
    const auto found =
        std::find_if(words.begin(), words.end(),
                     [word, &is_meant](const std::string& meant) { return is_meant(word, meant); });
    return found == words.end() ? std::string_view() : *found;
  };
  std::string_view best = first_of(DifferInSubject);
  if (!best.empty()) return best;
  std::size_t fewest = kMostMistakes + 1;
  for (const std::string& meant : words) {
    const std::size_t mistakes = MistakesIn(word, meant).value_or(fewest);
    if (mistakes >= fewest) continue;
    fewest = mistakes;
    best = meant;
  }
  return best.empty() ? first_of(IsBeginningOf) : best;
}

}  // namespace orvane
