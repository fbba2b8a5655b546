#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

// The number that a column which counts up should have next. Nothing fails.

namespace orvane {

// Knows the number as it is usually written, so that a cell need not be read to be recognized.
class NextNumber {
 public:
  explicit NextNumber(std::int64_t number);

  [[nodiscard]] std::int64_t Value() const { return number_; }

  // Whether `cell` is this number in its usual form. Any other is not, whatever its value.
  [[nodiscard]] bool IsWrittenAs(std::string_view cell) const {
    return !cell.empty() && cell == Digits();
  }

  // Goes on to the number behind it.
  void Advance();

 private:
  // Empty for a number that is negative or that no whole number of a file can be.
  [[nodiscard]] std::string_view Digits() const {
    return {digits_.data() + first_, digits_.size() - first_};
  }

  std::int64_t number_;
  std::array<char, 10> digits_{};  // of any such number; those from `first_` on count
  std::size_t first_;
};

}  // namespace orvane
