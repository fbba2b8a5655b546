#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "formats/trc/row_starts.h"

// The samples of markers in one block of numbers: a row for each frame, in it a column for each
// marker, in that x, y and z. Rows and columns count from 0. Once there is a row that is shorter
// than the columns, as lines of a file may be, no row holds the dropouts behind its last position:
// they take no room. Which of the others are positions, a bit for each tells. So a short file whose
// lines are blank for a thousand markers takes no more memory than its bytes suggest. What fails
// for want of memory, by std::bad_alloc or std::length_error, changes nothing.
namespace orvane {

class TRCSampleBlock {
 public:
  // Dropouts that follow each other: the samples from `begin` up to and without `end`.
  struct Gap {
    std::size_t begin = 0;
    std::size_t end = 0;
  };

  static constexpr std::size_t kCoordinates = 3;

  // REQUIRES: there are four million columns at most.
  explicit TRCSampleBlock(std::size_t columns) : columns_(columns) {}

  // A column of a block, or of none, which has no samples. Its dropouts before `scaled` are at the
  // origin.
  struct Column {
    const TRCSampleBlock* block = nullptr;
    std::size_t index = 0;
    std::size_t scaled = 0;
  };
  // Columns side by side, in rows that hold all of them, as many as the longest has. Throws
  // std::length_error for more than there can be. REQUIRES: there is a column.
  [[nodiscard]] static TRCSampleBlock Join(std::span<const Column> columns);

  [[nodiscard]] std::size_t ColumnCount() const { return columns_; }
  [[nodiscard]] std::size_t RowCount() const { return row_count_; }
  // The rows before those of dropouts alone that end the block.
  [[nodiscard]] std::size_t HeldRowCount() const { return held_rows_; }

  // The x, y and z of a position; null for a dropout, and past the end.
  [[nodiscard]] const double* PositionAt(std::size_t row, std::size_t column) const {
    if (row >= held_rows_ || column >= WidthOf(row)) return nullptr;
    const std::size_t sample = StartOf(row) + column;
    return IsMeasured(sample) ? numbers_.data() + kCoordinates * sample : nullptr;
  }

  // Whether every row holds all columns, so that the numbers are an array of rows by columns by
  // three, all three NaN in dropouts, or 0 in those that were scaled.
  [[nodiscard]] bool IsWhole() const { return held_rows_ == row_count_ && starts_.IsEmpty(); }
  [[nodiscard]] const double* Numbers() const { return numbers_.data(); }
  // A bit for each sample of those rows, the lowest of a word first: whether it is a position.
  [[nodiscard]] const std::uint64_t* Measured() const { return measured_.data(); }

  // Calls `visit` with row, column and x, y, z of each position, row after row.
  template <typename Visit>
  void VisitPositions(Visit visit) const {
    std::size_t sample = 0;
    for (std::size_t row = 0; row < held_rows_; ++row) {
      const std::size_t width = WidthOf(row);
      for (std::size_t column = 0; column < width; ++column, ++sample) {
        if (IsMeasured(sample)) visit(row, column, numbers_.data() + kCoordinates * sample);
      }
    }
  }

  // The gaps of each column, in order; no two of one touch.
  [[nodiscard]] std::vector<std::vector<Gap>> Gaps() const;

  // Those that are held: positions, and the dropouts that take room.
  [[nodiscard]] std::size_t SampleCount() const { return numbers_.size() / kCoordinates; }
  // How many more there is room for.
  [[nodiscard]] std::size_t Room() const {
    return numbers_.capacity() / kCoordinates - SampleCount();
  }
  // Makes room for `samples` in all.
  void Reserve(std::size_t samples);
  // Appends a row: three numbers for each of the first columns, x, y and z, all NaN for a dropout.
  // Samples behind them are dropouts too. REQUIRES: there are no more than the columns.
  void AppendRow(std::span<const double> numbers);
  // Appends `count` rows of dropouts alone, in constant time.
  void AppendDropouts(std::size_t count) { row_count_ += count; }
  // Appends a position, whatever its numbers are. REQUIRES: there is one column.
  void AppendPosition(double x, double y, double z);

  // Puts a position in the place of a sample. Returns false, changing nothing, where there is no
  // room for it: in a row that ends before it, unless there is one column alone. Then it takes time
  // in proportion to what is behind the sample, else constant time.
  [[nodiscard]] bool SetPosition(std::size_t row, std::size_t column, double x, double y, double z);

  // Multiplies the numbers of all positions, and puts the dropouts that are held at the origin.
  void Scale(double factor);

  // Gives back room that is not used. All samples are copied for that.
  void ShrinkToFit();
  // Bytes that are taken, used or not.
  [[nodiscard]] std::size_t Bytes() const;

 private:
  [[nodiscard]] std::size_t StartOf(std::size_t row) const {
    return starts_.IsEmpty() ? row * columns_ : starts_[row];
  }
  [[nodiscard]] std::size_t WidthOf(std::size_t row) const {
    return starts_.IsEmpty() ? columns_ : starts_[row + 1] - starts_[row];
  }
  [[nodiscard]] bool IsMeasured(std::size_t sample) const {
    return (measured_[sample / kBits] >> (sample % kBits) & 1U) != 0;
  }

  void Mark(std::size_t sample) {
    measured_[sample / kBits] |= std::uint64_t{1} << (sample % kBits);
  }
  template <typename IsPosition>
  [[nodiscard]] static std::span<const double> WithoutDropoutsBehind(
      std::span<const double> numbers, IsPosition is_position);
  template <typename IsPosition>
  void AppendHeldRow(std::span<const double> numbers, IsPosition is_position);
  void MakeRoom(std::size_t samples);
  void HoldRows(std::size_t count);
  void KeepStarts();
  void MoveRowsTo(const TRCRowStarts& starts);
  void InsertSample(std::size_t row);
  void InsertMark(std::size_t sample);
  [[nodiscard]] std::uint64_t MarksFrom(std::size_t sample, std::size_t count) const;

  static constexpr std::size_t kBits = 64;

  std::size_t columns_;
  std::size_t row_count_ = 0;
  std::size_t held_rows_ = 0;            // without those of dropouts alone at the end
  std::vector<double> numbers_;          // of row after row; NaN or, once scaled, 0 in dropouts
  std::vector<std::uint64_t> measured_;  // a bit for each sample, the first one lowest
  TRCRowStarts starts_;  // in samples, and the end of the last; empty while all rows are whole
};

}  // namespace orvane
