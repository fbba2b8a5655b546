#pragma once

#include <cassert>
#include <cstddef>
#include <optional>
#include <string>

// How a writer puts real numbers into a file, where it has the choice. Nothing here depends on the
// locale, and nothing
// fails but for want of memory.
namespace orvane {

class NumberForm {
 public:
  static constexpr int kMostDecimals = 17;

  // The most characters that a number takes: a sign, 309 digits, the point and the decimals.
  static constexpr std::size_t kLongest = 328;

  // The shortest text that is read as the same number.
  [[nodiscard]] static constexpr NumberForm Shortest() { return NumberForm({}); }

  // So many digits behind the point, rounded to the nearest number, a tie to the even digit.
  // REQUIRES: `decimals` is from 0 to kMostDecimals.
  [[nodiscard]] static constexpr NumberForm Decimals(int decimals) {
    assert(decimals >= 0 && decimals <= kMostDecimals);
    return NumberForm(decimals);
  }

  [[nodiscard]] constexpr bool IsShortest() const { return !decimals_; }

  // How many digits behind the point; nothing for the shortest text.
  [[nodiscard]] constexpr std::optional<int> DecimalsAsked() const { return decimals_; }

  // Writes `value` to `first` and behind, where there must be room for kLongest characters, and
  // ends it with no NUL. Returns the place behind the last one. What is infinite is 1e999, which
  // readers take for infinite, and what is no number 0, as they take it.
  char* Write(double value, char* first) const;

  // The same as a text.
  [[nodiscard]] std::string Text(double value) const;

 private:
  constexpr explicit NumberForm(std::optional<int> decimals) : decimals_(decimals) {}

  std::optional<int> decimals_;  // nothing for the shortest
};

}  // namespace orvane
