#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "formats/htr/frames.h"
#include "formats/math/vector.h"
#include "formats/text/aligned_cells.h"
#include "formats/text/number_row.h"
#include "formats/text/tokens.h"

// The numbers of a line that places a bone, behind the name of a segment or the number of a frame:
// a translation, three angles, and the length of the bone or its scale. Belongs to the readers.
namespace orvane {

class TransformRow {
 public:
  // Reads them from the cell `first` on. Cells that are missing are 0.
  void Read(std::string_view line, std::size_t first) {
    const std::string_view rest = numbers_.Read(line, first, kNumbers);
    for (std::size_t index = 0; index < kNumbers; ++index) {
      values_[index] = NumberOrZero(numbers_[index]);
    }
    is_ordinary_ =
        numbers_.Count() == kNumbers && numbers_.AreOrdinary() && SkipSeparators(rest).empty();
  }

  // Reads the line that `ahead` begins with, if it is like nearly all that place a bone in a frame:
  // a cell and the seven numbers, as IsOrdinary says, one separator between each two, and nothing
  // else. Returns its size with its line break, or 0 for any other line, which is left to Read.
  [[nodiscard]] std::size_t ReadFrame(std::string_view ahead);

  Vector3 Translation() const { return VectorAt(0, 1.0); }
  // In radians, when the file's unit is as many.
  Vector3 Angles(double radians) const { return VectorAt(3, radians); }
  double LengthOrScale() const { return values_[6]; }

  // All of them; angles are in a unit of so many `radians`.
  HtrFrame Frame(double radians) const {
    HtrFrame frame;
    for (std::size_t index = 0; index < kNumbers; ++index) {
      const bool is_angle = index >= 3 && index < 6;
      frame[index] = is_angle ? values_[index] * radians : values_[index];
    }
    return frame;
  }

  // Whether all are there, each a number that is finite in single precision, and nothing else.
  [[nodiscard]] bool IsOrdinary() const { return is_ordinary_; }

 private:
  static constexpr std::size_t kNumbers = 7;

  Vector3 VectorAt(std::size_t first, double factor) const {
    return Vector3(values_[first] * factor, values_[first + 1] * factor,
                   values_[first + 2] * factor);
  }

  NumberRow<BlanksAndTabs> numbers_;
  std::array<double, kNumbers> values_{};
  AlignedCells<BelowNumbers> cells_{kNumbers};  // of frames
  bool is_ordinary_ = false;
};

}  // namespace orvane
