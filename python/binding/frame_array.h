#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

// Numbers of frames as they lie in memory, row behind row: first all frames of the first marker or
// segment, then those of the next.

namespace binding {

class FrameArray {
 public:
  // All numbers are NaN: what is not set is not there.
  FrameArray(std::size_t frames, std::size_t names, std::size_t numbers);

  // The numbers of one frame of one name.
  // REQUIRES: there are such.
  [[nodiscard]] double* Row(std::size_t frame, std::size_t name) {
    return values_.data() + (name * frames_ + frame) * numbers_;
  }
  [[nodiscard]] const double* Values() const { return values_.data(); }

  [[nodiscard]] std::size_t Frames() const { return frames_; }
  [[nodiscard]] std::size_t Names() const { return names_; }
  [[nodiscard]] std::size_t Numbers() const { return numbers_; }

  // From one frame, and from one name, to the next, in numbers.
  [[nodiscard]] std::int64_t FrameStride() const { return static_cast<std::int64_t>(numbers_); }
  [[nodiscard]] std::int64_t NameStride() const {
    return static_cast<std::int64_t>(frames_ * numbers_);
  }

 private:
  std::size_t frames_;
  std::size_t names_;
  std::size_t numbers_;
  std::vector<double> values_;
};

}  // namespace binding
