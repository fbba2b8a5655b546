#include "inspect/check/decimal_commas.h"

#include "formats/text/number_faults.h"
#include "formats/text/numbers.h"

namespace orvane {

bool DecimalCommas::IsOne(std::string_view cell) {
  const std::size_t comma = cell.find(',');
  if (comma == 0 || comma == std::string_view::npos || comma + 1 == cell.size()) return false;
  if (cell.find('.') != std::string_view::npos) return false;
  std::string with_point(cell);
  with_point[comma] = '.';
  const bool ends_in_digit = cell.back() >= '0' && cell.back() <= '9';
  return ends_in_digit && FaultOfNumber(with_point) == NumberFault::kNone;
}

bool DecimalCommas::LosesAny(std::string_view cell) {
  return cell.find_first_not_of('0', cell.find(',') + 1) != std::string_view::npos;
}

void DecimalCommas::Keep(std::string_view cell, const FindingPlace& place) {
  first_ = cell;
  place_ = place;
}

void DecimalCommas::AddTo(FindingList& findings, const FindingRule& rule) const {
  if (count_ == 0) return;
  const std::string taken = first_.substr(0, first_.find(','));
  findings.Add(rule, place_,
               {Quote(first_) + " in " + CountOf(count_, "cell"), "a point in numbers, no comma",
                "A number ends at the comma: " + taken + " is taken for " + first_ + "."});
}

}  // namespace orvane
