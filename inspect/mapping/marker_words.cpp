#include "inspect/mapping/marker_words.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace orvane {
namespace {

constexpr bool IsSmall(char character) { return 'a' <= character && character <= 'z'; }
constexpr bool IsCapital(char character) { return 'A' <= character && character <= 'Z'; }
constexpr bool IsDigit(char character) { return '0' <= character && character <= '9'; }
constexpr bool IsOther(char character) { return static_cast<unsigned char>(character) >= 0x80; }

constexpr bool IsOfAWord(char character) {
  return IsSmall(character) || IsCapital(character) || IsDigit(character) || IsOther(character);
}

// "RKnee" is two words, and so is "kneeR"; "RMT5" is one.
bool BeginsWord(std::string_view text, std::size_t at) {
  if (!IsCapital(text[at])) return false;
  if (IsSmall(text[at - 1])) return true;
  return IsCapital(text[at - 1]) && at + 1 < text.size() && IsSmall(text[at + 1]);
}

std::vector<std::string> SmallWordsOf(std::string_view text) {
  std::vector<std::string> words;
  bool continues = false;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (!IsOfAWord(text[at])) {
      continues = false;
      continue;
    }
    if (!continues || BeginsWord(text, at)) words.emplace_back();
    words.back() += InSmallLetters(text.substr(at, 1));
    continues = true;
  }
  return words;
}

BodySide SideNamedBy(std::string_view word) {
  if (word == "l" || word == "left") return BodySide::kLeft;
  if (word == "r" || word == "right") return BodySide::kRight;
  return BodySide::kNone;
}

// A name that is a side and nothing else names no place.
BodySide TakeSide(std::vector<std::string>& words) {
  if (words.size() < 2) return BodySide::kNone;
  BodySide side = SideNamedBy(words.front());
  if (side != BodySide::kNone) {
    words.erase(words.begin());
    return side;
  }
  side = SideNamedBy(words.back());
  if (side != BodySide::kNone) words.pop_back();
  return side;
}

}  // namespace

SubjectAndMarker DivideName(std::string_view name) {
  const std::size_t colon = name.rfind(':');
  const std::size_t behind = colon == std::string_view::npos ? 0 : colon + 1;
  return {name.substr(0, behind), name.substr(behind)};
}

std::string InSmallLetters(std::string_view text) {
  std::string small(text);
  std::transform(small.begin(), small.end(), small.begin(), [](char letter) {
    return IsCapital(letter) ? static_cast<char>(letter - 'A' + 'a') : letter;
  });
  return small;
}

MarkerWords WordsOf(std::string_view marker) {
  std::vector<std::string> words = SmallWordsOf(marker);
  std::erase(words, "marker");
  MarkerWords result;
  result.side = TakeSide(words);
  for (const std::string& word : words) {
    result.place += word;
    result.place_backwards.insert(0, word);
  }
  return result;
}

}  // namespace orvane
