#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

// Eight characters at once, as a whole number of 64 bits whose lowest byte is the first of them.
// For the reading of long columns.
namespace orvane {

static_assert(std::endian::native == std::endian::little, "words are read in the order of bytes");

using Word = std::uint64_t;

inline constexpr std::size_t kCharactersPerWord = 8;

// A word of eight times `character`.
[[nodiscard]] constexpr Word WordOf(char character) {
  return Word{0x0101010101010101} * static_cast<unsigned char>(character);
}

// The eight characters from `text` on.
[[nodiscard]] inline Word LoadWord(const char* text) {
  Word word = 0;
  std::memcpy(&word, text, sizeof word);
  return word;
}

// The highest bit of each byte that is `character`, and no other bit.
[[nodiscard]] constexpr Word MarksOf(char character, Word word) {
  constexpr Word kLowBits = WordOf('\x7F');
  const Word difference = word ^ WordOf(character);
  return ~(((difference & kLowBits) + kLowBits) | difference | kLowBits);
}

// The highest bit of each byte that is less than `character`, which is none of the last 128.
[[nodiscard]] constexpr Word MarksBelow(char character, Word word) {
  constexpr Word kLowBits = WordOf('\x7F');
  const Word sum = (word & kLowBits) + (WordOf('\x7F') - WordOf(character) + WordOf('\x01'));
  return ~(sum | word | kLowBits);
}

}  // namespace orvane
