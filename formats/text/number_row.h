#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <span>
#include <string_view>
#include <vector>

#include "formats/text/cell_ends.h"
#include "formats/text/short_decimal.h"

// The numbers of a line, all read at once. Belongs to the readers, which spend most of their time
// here. Numbers are counted from 0.
namespace orvane {

// What stands between the cells of a line.
struct SingleTabs {  // nothing between two is an empty cell
  using Ends = CellEnds<'\t'>;
  static constexpr bool kHasEmptyCells = true;
};
struct BlanksAndTabs {  // of any number
  using Ends = CellEnds<' ', '\t'>;
  static constexpr bool kHasEmptyCells = false;
};

// What stands for a number where a cell is empty or missing. No cell is read as it.
inline constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
[[nodiscard]] inline bool IsNoNumber(double number) { return std::isnan(number); }
[[nodiscard]] inline double NumberOrZero(double number) {
  return IsNoNumber(number) ? 0.0 : number;
}

namespace number_row {

// Reads a cell as ParseDouble does, and keeps how many decimals it has, when it is a short number.
// Returns whether it is one number and nothing else, and finite in single precision. `reach` is how
// many characters before the end of the cell may be read.
[[nodiscard]] bool ReadCell(std::string_view cell, std::size_t reach, std::size_t& decimals,
                            double& value);

}  // namespace number_row

template <typename Separators>
class NumberRow {
 public:
  // So many numbers behind the last one that was read are kNoNumber: those of a line of motion.
  static constexpr std::size_t kSpareNumbers = 7;

  // Reads the cells of `line`, a piece of one, from the cell `first` on, `most` of them at most.
  // Returns what is left of the line behind the separator after the last one. An empty cell at the
  // very end of the line is none.
  std::string_view Read(std::string_view line, std::size_t first, std::size_t most) {
    ends_.Find(line);
    if (numbers_.size() < most + kSpareNumbers) numbers_.resize(most + kSpareNumbers);
    const char* const text = line.data();
    double* const numbers = numbers_.data();
    std::size_t decimals = decimals_;
    bool is_ordinary = true;
    std::size_t count = 0;
    std::size_t begin = 0;
    for (std::size_t cell = 0; begin < line.size() && count < most; ++cell) {
      const std::size_t end = ends_[cell];
      const std::size_t next = end + 1;
      if constexpr (Separators::kHasEmptyCells) {
        if (cell < first) {
          begin = next;
          continue;
        }
      } else if (end == begin || first > 0) {
        first -= end == begin ? 0 : 1;
        begin = next;
        continue;
      }
      double number = kNoNumber;
      const bool is_looked_at =
          end != begin && (end < kLongerDecimalReach ||
                           !ReadDecimalOfRow(text + begin, text + end, decimals, number));
      if (is_looked_at) {
        is_ordinary &= number_row::ReadCell(line.substr(begin, end - begin), end, decimals, number);
      }
      numbers[count++] = number;
      begin = next;
    }
    std::fill_n(numbers + count, kSpareNumbers, kNoNumber);
    decimals_ = decimals;
    count_ = count;
    is_ordinary_ = is_ordinary;
    return line.substr(std::min(begin, line.size()));
  }

  // How many cells the line has, an empty one at its end included.
  [[nodiscard]] std::size_t CellsOfLine() const { return ends_.Separators() + 1; }

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
  [[nodiscard]] bool AreOrdinary() const { return is_ordinary_; }

 private:
  typename Separators::Ends ends_;
  std::vector<double> numbers_;
  std::size_t count_ = 0;
  std::size_t decimals_ = 6;  // of the last short number, which the next will have
  bool is_ordinary_ = true;
};

}  // namespace orvane
