#include "formats/text/number_faults.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "formats/text/numbers.h"

namespace orvane {
namespace {

// Nine digits always fit 32 bits.
bool IsShortWholeNumber(std::string_view cell) {
  constexpr std::size_t kMostDigits = 9;
  return !cell.empty() && cell.size() <= kMostDigits &&
         std::all_of(cell.begin(), cell.end(),
                     [](char character) { return character >= '0' && character <= '9'; });
}

bool FitsInt(double value) {
  return value >= std::numeric_limits<std::int32_t>::min() &&
         value <= std::numeric_limits<std::int32_t>::max();
}

}  // namespace

NumberFault FaultOfNumber(std::string_view cell) {
  if (IsPlainDecimal(cell)) return NumberFault::kNone;
  if (cell.empty()) return NumberFault::kMissing;
  const char* const end = cell.data() + cell.size();
  const LeadingDouble number = ReadDouble(cell.data(), end);
  if (number.end != end) return NumberFault::kUnreadable;
  return FitsSinglePrecision(number.value) ? NumberFault::kNone : NumberFault::kOutOfBounds;
}

NumberFault FaultOfWholeNumber(std::string_view cell) {
  if (IsShortWholeNumber(cell)) return NumberFault::kNone;
  const NumberFault fault = FaultOfNumber(cell);
  if (fault != NumberFault::kNone) return fault;
  const double value = ReadDouble(cell.data(), cell.data() + cell.size()).value;
  if (!FitsInt(value)) return NumberFault::kOutOfBounds;
  return value == ParseInt(cell) ? NumberFault::kNone : NumberFault::kCut;
}

}  // namespace orvane
