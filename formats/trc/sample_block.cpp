#include "formats/trc/sample_block.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cassert>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <utility>

namespace orvane {
namespace {

// The gaps of columns, of which each is told as soon as it ends.
class GapCollector {
 public:
  using Gap = TRCSampleBlock::Gap;

  explicit GapCollector(std::size_t columns) : begins_(columns), gaps_(columns) {}

  // A gap of each of the columns `marked`, counted from `first` on, begins or ends at `row`.
  void Turn(std::size_t row, std::size_t first, std::uint64_t marked, std::uint64_t is_measured) {
    for (; marked != 0; marked &= marked - 1) {
      const auto bit = static_cast<std::size_t>(std::countr_zero(marked));
      if ((is_measured >> bit & 1U) != 0) {
        End(row, first + bit);
      } else {
        begins_[first + bit] = row;
      }
    }
  }
  void End(std::size_t row, std::size_t column) {
    if (begins_[column] < row) gaps_[column].push_back({begins_[column], row});
  }

  std::vector<std::vector<Gap>>& Found() { return gaps_; }

 private:
  std::vector<std::size_t> begins_;  // of the gap that each column is in
  std::vector<std::vector<Gap>> gaps_;
};

}  // namespace

TRCSampleBlock TRCSampleBlock::Join(std::span<const Column> columns) {
  TRCSampleBlock joined(columns.size());
  for (const Column& column : columns) {
    if (column.block == nullptr) continue;
    joined.row_count_ = std::max(joined.row_count_, column.block->RowCount());
  }
  if (joined.row_count_ > joined.numbers_.max_size() / kCoordinates / columns.size()) {
    throw std::length_error("samples of more rows than there is memory");
  }
  const std::size_t samples = joined.row_count_ * columns.size();
  joined.held_rows_ = joined.row_count_;
  joined.measured_.resize((samples + kBits - 1) / kBits);
  joined.numbers_.resize(kCoordinates * samples, std::numeric_limits<double>::quiet_NaN());
  double* numbers = joined.numbers_.data();
  for (std::size_t sample = 0; sample < samples; ++sample, numbers += kCoordinates) {
    const std::size_t row = sample / columns.size();
    const auto& [block, index, scaled] = columns[sample % columns.size()];
    const double* const position = block == nullptr ? nullptr : block->PositionAt(row, index);
    if (position != nullptr) {
      joined.Mark(sample);
      std::copy_n(position, kCoordinates, numbers);
    } else if (row < scaled) {
      std::fill_n(numbers, kCoordinates, 0.0);
    }
  }
  return joined;
}

std::vector<std::vector<TRCSampleBlock::Gap>> TRCSampleBlock::Gaps() const {
  GapCollector collector(columns_);
  std::vector<std::uint64_t> before((columns_ + kBits - 1) / kBits);  // the row, no position first
  std::size_t width_before = 0;
  for (std::size_t row = 0; row <= held_rows_; ++row) {
    const std::size_t width = row < held_rows_ ? WidthOf(row) : 0;
    for (std::size_t column = 0; column < std::max(width, width_before); column += kBits) {
      const std::uint64_t marks =
          column < width ? MarksFrom(StartOf(row) + column, width - column) : 0;
      collector.Turn(row, column, marks ^ before[column / kBits], marks);
      before[column / kBits] = marks;
    }
    width_before = width;
  }
  for (std::size_t column = 0; column < columns_; ++column) collector.End(row_count_, column);
  return std::move(collector.Found());
}

// The bits of the samples from one on, 64 or `count`, which is not 0.
std::uint64_t TRCSampleBlock::MarksFrom(std::size_t sample, std::size_t count) const {
  const std::size_t word = sample / kBits;
  const std::size_t shift = sample % kBits;
  std::uint64_t marks = measured_[word] >> shift;
  if (shift + std::min(count, kBits) > kBits) marks |= measured_[word + 1] << (kBits - shift);
  return count >= kBits ? marks : marks & ((std::uint64_t{1} << count) - 1);
}

void TRCSampleBlock::Reserve(std::size_t samples) {
  numbers_.reserve(kCoordinates * samples);
  measured_.reserve((samples + kBits - 1) / kBits);
}

void TRCSampleBlock::AppendRow(std::span<const double> numbers) {
  if (numbers.empty()) return AppendDropouts(1);
  AppendHeldRow(numbers, [](double x) { return !std::isnan(x); });
}

void TRCSampleBlock::AppendPosition(double x, double y, double z) {
  assert(columns_ == 1);
  const double numbers[] = {x, y, z};
  AppendHeldRow(numbers, [](double) { return true; });
}

// The numbers of a row up to its last position.
template <typename IsPosition>
std::span<const double> TRCSampleBlock::WithoutDropoutsBehind(std::span<const double> numbers,
                                                              IsPosition is_position) {
  std::size_t size = numbers.size();
  while (size > 0 && !is_position(numbers[size - kCoordinates])) size -= kCoordinates;
  return numbers.first(size);
}

template <typename IsPosition>
void TRCSampleBlock::AppendHeldRow(std::span<const double> numbers, IsPosition is_position) {
  assert(numbers.size() % kCoordinates == 0 && numbers.size() <= kCoordinates * columns_);
  HoldRows(row_count_);
  if (starts_.IsEmpty() && numbers.size() < kCoordinates * columns_) KeepStarts();
  if (!starts_.IsEmpty()) numbers = WithoutDropoutsBehind(numbers, is_position);
  const std::size_t first = SampleCount();
  const std::size_t end = first + numbers.size() / kCoordinates;
  MakeRoom(end);
  if (!starts_.IsEmpty()) starts_.Append(end);
  measured_.resize((end + kBits - 1) / kBits);
  const double* x = numbers.data();
  for (std::size_t sample = first; sample < end;) {
    const std::size_t word = sample / kBits;
    std::uint64_t marks = measured_[word];
    for (const std::size_t word_end = std::min(end, (word + 1) * kBits); sample < word_end;
         ++sample, x += kCoordinates) {
      marks |= static_cast<std::uint64_t>(is_position(*x)) << (sample % kBits);
    }
    measured_[word] = marks;
  }
  numbers_.insert(numbers_.end(), numbers.begin(), numbers.end());
  held_rows_ = ++row_count_;
}

// For `samples` in all, so that nothing fails once they are begun.
void TRCSampleBlock::MakeRoom(std::size_t samples) {
  const std::size_t numbers = kCoordinates * samples;
  const std::size_t words = (samples + kBits - 1) / kBits;
  if (numbers > numbers_.capacity()) numbers_.reserve(std::max(numbers, 2 * numbers_.capacity()));
  if (words > measured_.capacity()) measured_.reserve(std::max(words, 2 * measured_.capacity()));
}

// Holds rows of dropouts too, up to `count` in all.
void TRCSampleBlock::HoldRows(std::size_t count) {
  if (held_rows_ == count) return;
  if (starts_.IsEmpty()) KeepStarts();
  for (; held_rows_ < count; ++held_rows_) starts_.Append(SampleCount());
}

// Whole rows until now, they end with their last positions from now on.
void TRCSampleBlock::KeepStarts() {
  TRCRowStarts starts;
  std::size_t end = 0;
  starts.Append(end);
  for (std::size_t row = 0; row < held_rows_; ++row) {
    std::size_t width = columns_;
    while (width > 0 && !IsMeasured(row * columns_ + width - 1)) --width;
    end += width;
    starts.Append(end);
  }
  MoveRowsTo(starts);
  std::swap(starts, starts_);
}

// Whole rows, to where they begin in `starts`, and as far as the next one's begin.
void TRCSampleBlock::MoveRowsTo(const TRCRowStarts& starts) {
  const std::size_t end = starts[held_rows_];
  if (end == SampleCount()) return;
  for (std::size_t row = 0; row < held_rows_; ++row) {
    const std::size_t from = row * columns_;
    const std::size_t width = starts[row + 1] - starts[row];
    for (std::size_t column = 0; column < width; ++column) {
      const std::size_t sample = starts[row] + column;
      if (IsMeasured(from + column)) {
        Mark(sample);
      } else {
        measured_[sample / kBits] &= ~(std::uint64_t{1} << (sample % kBits));
      }
    }
    const double* const numbers = numbers_.data() + kCoordinates * from;
    std::copy_n(numbers, kCoordinates * width, numbers_.data() + kCoordinates * starts[row]);
  }
  numbers_.resize(kCoordinates * end);
  measured_.resize((end + kBits - 1) / kBits);
  if (end % kBits != 0) measured_.back() &= (std::uint64_t{1} << (end % kBits)) - 1;
}

bool TRCSampleBlock::SetPosition(std::size_t row, std::size_t column, double x, double y,
                                 double z) {
  assert(row < row_count_ && column < columns_);
  if (row >= held_rows_ || column >= WidthOf(row)) {
    if (columns_ > 1) return false;
    HoldRows(std::max(held_rows_, row + 1));
    InsertSample(row);
  }
  const std::size_t sample = StartOf(row) + column;
  Mark(sample);
  const std::array position{x, y, z};
  std::copy(position.begin(), position.end(), numbers_.data() + kCoordinates * sample);
  return true;
}

// In a row without any.
void TRCSampleBlock::InsertSample(std::size_t row) {
  const std::size_t sample = StartOf(row);
  MakeRoom(SampleCount() + 1);
  InsertMark(sample);
  numbers_.insert(numbers_.begin() + static_cast<std::ptrdiff_t>(kCoordinates * sample),
                  kCoordinates, 0.0);
  starts_.WidenRow(row);
}

void TRCSampleBlock::InsertMark(std::size_t sample) {
  measured_.resize((SampleCount() + kBits) / kBits);
  const std::size_t first = sample / kBits;
  for (std::size_t word = measured_.size() - 1; word > first; --word) {
    measured_[word] = measured_[word] << 1U | measured_[word - 1] >> (kBits - 1);
  }
  const std::uint64_t below = (std::uint64_t{1} << (sample % kBits)) - 1;
  measured_[first] = (measured_[first] & below) | (measured_[first] & ~below) << 1U;
}

void TRCSampleBlock::Scale(double factor) {
  double* numbers = numbers_.data();
  for (std::size_t sample = 0; sample < SampleCount(); ++sample, numbers += kCoordinates) {
    if (IsMeasured(sample)) {
      for (std::size_t axis = 0; axis < kCoordinates; ++axis) numbers[axis] *= factor;
    } else {
      std::fill_n(numbers, kCoordinates, 0.0);
    }
  }
}

void TRCSampleBlock::ShrinkToFit() {
  numbers_.shrink_to_fit();
  measured_.shrink_to_fit();
}

std::size_t TRCSampleBlock::Bytes() const {
  return numbers_.capacity() * sizeof(double) + measured_.capacity() * sizeof(std::uint64_t) +
         starts_.Bytes();
}

}  // namespace orvane
