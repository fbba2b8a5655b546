#pragma once

#include <bit>
#include <cstddef>
#include <string_view>

#include "formats/text/words.h"

// Looks for a character in long texts.
namespace orvane {

// The index of the first `character` of `text` from `begin` on; npos when there is none. As
// std::string_view::find, by words: that asks the C library, and Windows' own goes byte by byte.
[[nodiscard]] inline std::size_t FindCharacter(std::string_view text, char character,
                                               std::size_t begin = 0) {
  constexpr std::size_t kBlock = 4 * kCharactersPerWord;
  const char* const bytes = text.data();
  std::size_t at = begin;
  for (; at + kBlock <= text.size(); at += kBlock) {
    const char* const block = bytes + at;
    const Word marks = MarksOf(character, LoadWord(block)) |
                       MarksOf(character, LoadWord(block + kCharactersPerWord)) |
                       MarksOf(character, LoadWord(block + 2 * kCharactersPerWord)) |
                       MarksOf(character, LoadWord(block + 3 * kCharactersPerWord));
    if (marks != 0) break;
  }
  for (; at + kCharactersPerWord <= text.size(); at += kCharactersPerWord) {
    const Word marks = MarksOf(character, LoadWord(bytes + at));
    if (marks != 0) return at + static_cast<std::size_t>(std::countr_zero(marks)) / 8;
  }
  for (; at < text.size(); ++at) {
    if (bytes[at] == character) return at;
  }
  return std::string_view::npos;
}

}  // namespace orvane
