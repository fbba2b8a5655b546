#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <vector>

// Where the rows of a block begin that are not all as long: four bytes a row, since a line of a
// file may be no more than its line break. Belongs to TRCSampleBlock.
namespace orvane {

// Rows have no more than four million samples.
class TRCRowStarts {
 public:
  [[nodiscard]] bool IsEmpty() const { return offsets_.empty(); }
  std::size_t operator[](std::size_t row) const {
    return bases_[row / kRowsPerBase] + offsets_[row];
  }

  // `start` is not before that of the row before. Changes nothing when memory runs out.
  void Append(std::size_t start) {
    if (offsets_.size() % kRowsPerBase == 0) {
      bases_.resize(offsets_.size() / kRowsPerBase);  // without one whose offset failed
      bases_.push_back(start);
    }
    offsets_.push_back(static_cast<std::uint32_t>(start - bases_.back()));
  }
  // Makes room for one sample more in `row`.
  void WidenRow(std::size_t row) {
    std::size_t behind = row + 1;
    for (; behind < offsets_.size() && behind % kRowsPerBase != 0; ++behind) ++offsets_[behind];
    std::size_t base = (behind + kRowsPerBase - 1) / kRowsPerBase;
    for (; base < bases_.size(); ++base) ++bases_[base];
  }

  [[nodiscard]] std::size_t Bytes() const {
    return bases_.capacity() * sizeof(std::size_t) + offsets_.size() * sizeof(std::uint32_t);
  }

 private:
  static constexpr std::size_t kRowsPerBase = 1024;

  std::vector<std::size_t> bases_;     // the starts of every so many rows
  std::deque<std::uint32_t> offsets_;  // of each row, from there; not copied when it grows
};

}  // namespace orvane
