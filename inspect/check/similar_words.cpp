#include "inspect/check/similar_words.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace orvane {
namespace {

constexpr std::size_t kMostMistakes = 2;
constexpr std::size_t kLongestWord = 40;
constexpr std::size_t kShortestWord = 5;  // below it, two mistakes make another word

char LowerCase(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool Matches(char left, char right) { return LowerCase(left) == LowerCase(right); }

// Letters to replace, insert or delete between the two (Levenshtein, 1966), row by row.
std::size_t Distance(std::string_view left, std::string_view right) {
  std::array<std::size_t, kLongestWord + 1> row{};
  for (std::size_t column = 0; column <= right.size(); ++column) row[column] = column;
  for (std::size_t line = 1; line <= left.size(); ++line) {
    std::size_t diagonal = row[0];
    row[0] = line;
    for (std::size_t column = 1; column <= right.size(); ++column) {
      const bool same = Matches(left[line - 1], right[column - 1]);
      const std::size_t replaced = diagonal + (same ? 0 : 1);
      diagonal = row[column];
      row[column] = std::min({replaced, row[column] + 1, row[column - 1] + 1});
    }
  }
  return row[right.size()];
}

}  // namespace

bool LooksLike(std::string_view word, std::string_view meant) {
  if (word == meant || word.size() > kLongestWord || meant.size() > kLongestWord) return false;
  if (word.size() > meant.size() + kMostMistakes || meant.size() > word.size() + kMostMistakes) {
    return false;
  }
  const std::size_t distance = Distance(word, meant);
  return distance == 0 || (distance <= kMostMistakes && meant.size() >= kShortestWord);
}

}  // namespace orvane
