#pragma once

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "formats/text/aligned_cells.h"
#include "formats/text/tokens.h"
#include "formats/text/words.h"

// The numbers of a line, all read at once. Belongs to the readers, which spend most of their time
// here. Numbers are counted from 0.
namespace orvane {

// What stands between the cells of a line.
struct SingleTabs {  // nothing between two is an empty cell
  static constexpr bool kHasEmptyCells = true;
  static constexpr bool Separates(char character) { return character == '\t'; }
  static constexpr Word MarksIn(Word word) { return MarksOf('\t', word); }
};
struct BlanksAndTabs {  // of any number
  static constexpr bool kHasEmptyCells = false;
  static constexpr bool Separates(char character) { return IsSeparator(character); }
  static constexpr Word MarksIn(Word word) { return MarksOf(' ', word) | MarksOf('\t', word); }
};

template <typename Separators>
class NumberRow {
 public:
  // So many numbers behind the last one that was read are kNoNumber: those of a line of motion.
  static constexpr std::size_t kSpareNumbers = 7;

  // Reads the cells of `line`, a piece of one, from the cell `first` on, `most` of them at most.
  // Returns what is left of the line behind the separator after the last one. An empty cell at the
  // very end of the line is none.
  std::string_view Read(std::string_view line, std::size_t first, std::size_t most) {
    MakeRoom(most);
    const char* const end = line.data() + line.size();
    separators_ = 0;
    const char* begin = SkipCells(line.data(), end, first);
    double* const numbers = numbers_.data();
    std::size_t count = 0;
    cells_.StartRow();
    for (; count < most && (begin = StartOfCell(begin, end)) != end; ++count) {
      begin = Behind(cells_.Read(line, begin, count, numbers[count]), end);
    }
    Finish(count, cells_.AreOrdinary());
    rest_ = line.substr(static_cast<std::size_t>(begin - line.data()));
    return rest_;
  }

  // Reads the line that `ahead` begins with as Read does, if it is like nearly all that are full of
  // numbers: `first` cells, `most` behind them at most, which are as AreOrdinary says, and a line
  // break, with no character in it that BelowNumbers separates but tabs. Returns its size with its
  // break, or 0 for any other line, which is left to Read.
  [[nodiscard]] std::size_t ReadAhead(std::string_view ahead, std::size_t first, std::size_t most) {
    static_assert(Separators::kHasEmptyCells);
    MakeRoom(most);
    const char* const end = ahead.data() + ahead.size();
    const char* begin = ahead.data();
    for (std::size_t cell = 0; cell < first; ++cell) {
      begin = FindSeparator<BelowNumbers>(begin, end);
      if (begin == end || !Separators::Separates(*begin)) return 0;
      ++begin;
    }
    double* const numbers = numbers_.data();
    std::size_t count = 0;
    std::size_t separators = first;
    cells_ahead_.StartRow();
    while (count < most) {
      const char* const cell_end = cells_ahead_.Read(ahead, begin, count, numbers[count]);
      if (cell_end == end) return 0;
      const bool is_last = !Separators::Separates(*cell_end);
      if (!is_last || cell_end != begin) ++count;
      begin = cell_end;
      if (is_last) break;
      ++begin;
      ++separators;
    }
    const std::size_t size = SizeWithBreak(ahead, static_cast<std::size_t>(begin - ahead.data()));
    if (size == 0 || !cells_ahead_.AreOrdinary()) return 0;
    Finish(count, true);
    separators_ = separators;
    rest_ = {};
    return size;
  }

  // How many cells the line has, an empty one at its end included. REQUIRES: the line lives.
  [[nodiscard]] std::size_t CellsOfLine() const {
    return 1 + separators_ +
           static_cast<std::size_t>(
               std::count_if(rest_.begin(), rest_.end(), Separators::Separates));
  }

  // How many numbers were read.
  [[nodiscard]] std::size_t Count() const { return count_; }

  // The number that a cell starts with, 0 when it starts with none; kNoNumber of an empty or a
  // missing one. REQUIRES: it is not further behind the last one than kSpareNumbers.
  double operator[](std::size_t number) const { return numbers_[number]; }

  // The first so many numbers, and kNoNumber behind the last that was read, to be changed at will.
  // REQUIRES: they are no more than kSpareNumbers more than were read.
  [[nodiscard]] std::span<double> First(std::size_t count) {
    return std::span(numbers_).first(count);
  }

  // Whether all cells that were read are empty, or numbers and nothing else, each finite in single
  // precision.
  [[nodiscard]] bool AreOrdinary() const { return are_ordinary_; }

 private:
  void MakeRoom(std::size_t most) {
    if (numbers_.size() >= most + kSpareNumbers) return;
    numbers_.resize(most + kSpareNumbers);
    cells_.Resize(most);
    cells_ahead_.Resize(most);
  }

  void Finish(std::size_t count, bool are_ordinary) {
    std::fill_n(numbers_.data() + count, kSpareNumbers, kNoNumber);
    count_ = count;
    are_ordinary_ = are_ordinary;
  }

  // Where the next cell begins.
  static const char* StartOfCell(const char* begin, const char* end) {
    if constexpr (Separators::kHasEmptyCells) return begin;
    return std::find_if_not(begin, end, Separators::Separates);
  }

  // Steps over what ends a cell.
  const char* Behind(const char* cell_end, const char* end) {
    if (cell_end == end) return end;
    ++separators_;
    return cell_end + 1;
  }

  const char* SkipCells(const char* begin, const char* end, std::size_t count) {
    for (; count > 0 && (begin = StartOfCell(begin, end)) != end; --count) {
      begin = Behind(FindSeparator<Separators>(begin, end), end);
    }
    return begin;
  }

  AlignedCells<Separators> cells_;
  AlignedCells<BelowNumbers> cells_ahead_;  // of lines whose ends are not known
  std::vector<double> numbers_;
  std::string_view rest_;       // of the line, behind what was read
  std::size_t separators_ = 0;  // before that
  std::size_t count_ = 0;
  bool are_ordinary_ = false;
};

}  // namespace orvane
