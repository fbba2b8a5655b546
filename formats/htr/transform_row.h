#pragma once

#include <cstddef>
#include <string_view>

#include "formats/htr/frames.h"
#include "formats/math/vector.h"
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
    is_ordinary_ =
        numbers_.Count() == kNumbers && numbers_.AreOrdinary() && SkipSeparators(rest).empty();
  }

  Vector3 Translation() const { return VectorAt(0, 1.0); }
  // In radians, when the file's unit is as many.
  Vector3 Angles(double radians) const { return VectorAt(3, radians); }
  double LengthOrScale() const { return NumberOrZero(numbers_[6]); }

  // All of them; angles are in a unit of so many `radians`.
  HtrFrame Frame(double radians) const {
    HtrFrame frame;
    for (std::size_t index = 0; index < kNumbers; ++index) {
      const bool is_angle = index >= 3 && index < 6;
      frame[index] = NumberOrZero(numbers_[index]) * (is_angle ? radians : 1.0);
    }
    return frame;
  }

  // Whether all are there, each a number that is finite in single precision, and nothing else.
  [[nodiscard]] bool IsOrdinary() const { return is_ordinary_; }

 private:
  static constexpr std::size_t kNumbers = 7;

  Vector3 VectorAt(std::size_t first, double factor) const {
    return Vector3(NumberOrZero(numbers_[first]) * factor,
                   NumberOrZero(numbers_[first + 1]) * factor,
                   NumberOrZero(numbers_[first + 2]) * factor);
  }

  NumberRow<BlanksAndTabs> numbers_;
  bool is_ordinary_ = false;
};

}  // namespace orvane
