#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "inspect/check/findings.h"

// Numbers that are written as "12,5", as spreadsheets do in many countries: where there is one,
// there are thousands, and they have one cause. Nothing fails but for want of memory.

namespace orvane {

// Counts the cells of a file with such numbers.
class DecimalCommas {
 public:
  // Takes `cell` at `place`, which has a line and a column as FindingPlace has them, when it is
  // such a number. Returns whether it is.
  template <typename Place>
  bool Take(std::string_view cell, const Place& place) {
    if (!IsOne(cell)) return false;
    if (count_++ == 0 || (!LosesAny(first_) && LosesAny(cell))) {
      Keep(cell, {place.line, place.column});
    }
    return true;
  }

  // Adds one finding by `rule` for all that were taken, where the first that loses something is;
  // none when there was none.
  void AddTo(FindingList& findings, const FindingRule& rule) const;

 private:
  [[nodiscard]] static bool IsOne(std::string_view cell);
  // Whether there is more than zeros behind the comma.
  [[nodiscard]] static bool LosesAny(std::string_view cell);
  void Keep(std::string_view cell, const FindingPlace& place);

  std::size_t count_ = 0;
  std::string first_;
  FindingPlace place_;
};

}  // namespace orvane
