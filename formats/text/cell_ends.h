#pragma once

#include <array>
#include <bit>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "formats/text/lines.h"
#include "formats/text/words.h"

// Where the cells of a line end. All of a line's ends are found before the first cell is read: the
// processor need not wait for the end of a cell to begin with the next.
namespace orvane {

// `kSeparators` are the characters between cells.
template <char... kSeparators>
class CellEnds {
 public:
  // Finds the cells of `text`, of kLongestPiece characters at most.
  void Find(std::string_view text) {
    assert(text.size() <= kLongestPiece);
    count_ = 0;
    std::size_t at = 0;
    for (; text.size() - at >= kBlock; at += kBlock) {
      std::uint64_t marks = 0;
      for (std::size_t word = 0; word < kBlock; word += kCharactersPerWord) {
        marks |= MarksIn(LoadWord(text.data() + at + word)) << word;
      }
      Keep(marks, at);
    }
    std::uint64_t marks = 0;
    const std::size_t rest = text.size() - at;
    std::size_t word = 0;
    for (; rest - word >= kCharactersPerWord; word += kCharactersPerWord) {
      marks |= MarksIn(LoadWord(text.data() + at + word)) << word;
    }
    if (word < rest) marks |= MarksIn(LoadPart(text.substr(at + word))) << word;
    Keep(marks, at);
    ends_[count_] = static_cast<std::uint16_t>(text.size());
  }

  // How many separators there are.
  [[nodiscard]] std::size_t Separators() const { return count_; }

  // The place of the separator behind cell `index`; the end of the line behind the last cell.
  // REQUIRES: there are as many separators before it.
  std::size_t operator[](std::size_t index) const { return ends_[index]; }

 private:
  static constexpr std::size_t kBlock = 64;  // a bit of marks for each character
  static constexpr std::size_t kAtOnce = 8;  // as many ends as most blocks have are kept unasked

  static Word MarksIn(Word word) { return GatherMarks((MarksOf(kSeparators, word) | ...)); }

  // The last characters of a line, fewer than a word, with NULs behind them.
  static Word LoadPart(std::string_view text) {
    Word word = 0;
    std::memcpy(&word, text.data(), text.size());
    return word;
  }

  void Keep(std::uint64_t marks, std::size_t at) {
    std::uint16_t* end = ends_.data() + count_;
    count_ += CountBits(marks);
    do {
      for (std::size_t each = 0; each < kAtOnce; ++each) {
        *end++ = static_cast<std::uint16_t>(at + static_cast<std::size_t>(std::countr_zero(marks)));
        marks &= marks - 1;
      }
    } while (marks != 0);
  }

  std::array<std::uint16_t, kLongestPiece + kBlock + kAtOnce> ends_;
  std::size_t count_ = 0;
};

}  // namespace orvane
