#pragma once

#include <algorithm>
#include <bit>
#include <climits>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string_view>
#include <vector>

#include "formats/text/short_decimal.h"
#include "formats/text/words.h"

// Numbers in rows that are much alike. A cell is most likely as long as the one above it: so its
// end need not be looked for, and the processor need not wait for it to begin with the next. Cells
// count from 0.
namespace orvane {

// What stands for a number where a cell is empty or missing. No cell is read as it.
inline constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
[[nodiscard]] inline bool IsNoNumber(double number) { return std::isnan(number); }
[[nodiscard]] inline double NumberOrZero(double number) {
  return IsNoNumber(number) ? 0.0 : number;
}

// What separates and ends the cells of a line, all of which comes before what is in a number.
struct BelowNumbers {
  static constexpr bool Separates(char character) {
    return static_cast<unsigned char>(character) < '+';
  }
  static constexpr Word MarksIn(Word word) { return MarksBelow('+', word); }
};

// The size of the line that `ahead` begins with, whose cells are its first `length` bytes, with its
// line feed and the one carriage return that may stand before that; 0 unless these follow.
[[nodiscard]] constexpr std::size_t SizeWithBreak(std::string_view ahead, std::size_t length) {
  const bool has_return = length < ahead.size() && ahead[length] == '\r';
  const std::size_t feed = length + (has_return ? 1 : 0);
  return feed < ahead.size() && ahead[feed] == '\n' ? feed + 1 : 0;
}

// The first character that `Separators` mark from `begin` up to `end`, or else `end`.
template <typename Separators>
[[nodiscard]] const char* FindSeparator(const char* begin, const char* end) {
  for (; end - begin >= std::ptrdiff_t{kCharactersPerWord}; begin += kCharactersPerWord) {
    const Word marks = Separators::MarksIn(LoadWord(begin));
    if (marks != 0) return begin + std::countr_zero(marks) / CHAR_BIT;
  }
  return std::find_if(begin, end, Separators::Separates);
}

// Reads `cell` as ParseDouble does, and keeps how many decimals it has, when it is a short number.
// Returns whether it is one number and nothing else, and finite in single precision. `reach` is how
// many characters before the end of the cell may be read.
[[nodiscard]] bool ReadNumberCell(std::string_view cell, std::size_t reach, std::size_t& decimals,
                                  double& value);

template <typename Separators>
class AlignedCells {
 public:
  AlignedCells() = default;
  explicit AlignedCells(std::size_t count) : lengths_(count) {}

  void Resize(std::size_t count) { lengths_.resize(count); }

  // To be called before the first cell of a row.
  void StartRow() { are_ordinary_ = true; }

  // Reads the cell `index`, which begins at `begin` and is not empty, into `value`, as ParseDouble
  // does. Returns its end. `text` is what may be read. REQUIRES: `begin` is in it.
  const char* Read(std::string_view text, const char* begin, std::size_t index, double& value) {
    const std::size_t left = static_cast<std::size_t>(text.data() + text.size() - begin);
    const std::size_t length = lengths_[index];
    if (length < left) {
      const char* const end = begin + length;
      const std::size_t reach = static_cast<std::size_t>(end - text.data());
      if (Separators::Separates(*end) && ReadDecimalOfRow(begin, end, reach, decimals_, value)) {
        return end;
      }
    }
    return ReadUnlikeAbove(text, begin, index, value);
  }

  // Whether all cells of the row are empty, or one number and nothing else, each finite in single
  // precision.
  [[nodiscard]] bool AreOrdinary() const { return are_ordinary_; }

 private:
  const char* ReadUnlikeAbove(std::string_view text, const char* begin, std::size_t index,
                              double& value) {
    const char* const end = FindSeparator<Separators>(begin, text.data() + text.size());
    lengths_[index] = static_cast<std::size_t>(end - begin);
    if (end == begin) {
      value = kNoNumber;
    } else {
      const std::size_t reach = static_cast<std::size_t>(end - text.data());
      are_ordinary_ &= ReadNumberCell({begin, lengths_[index]}, reach, decimals_, value);
    }
    return end;
  }

  std::vector<std::size_t> lengths_;  // of the cells above
  bool are_ordinary_ = true;
  std::size_t decimals_ = 6;  // of the last short number, which the next will have
};

}  // namespace orvane
