#include "formats/text/aligned_cells.h"

#include "formats/text/number_faults.h"
#include "formats/text/numbers.h"

namespace orvane {
namespace {

// How many decimals the cell has if it is a short number.
std::size_t DecimalsOf(std::string_view cell) {
  const std::size_t point = cell.rfind('.');
  return point == std::string_view::npos ? cell.size() : cell.size() - 1 - point;
}

// Reads a number of up to 16 digits, by the decimals that it has.
bool ReadDecimal(std::string_view cell, std::size_t reach, std::size_t& decimals, double& value) {
  const std::size_t own = DecimalsOf(cell);
  if (own > kCharactersPerWord) return false;
  if (!ReadDecimalOfRow(cell.data(), cell.data() + cell.size(), reach, own, value)) return false;
  decimals = own;
  return true;
}

}  // namespace

bool ReadNumberCell(std::string_view cell, std::size_t reach, std::size_t& decimals,
                    double& value) {
  if (ReadDecimal(cell, reach, decimals, value)) return true;
  const char* const end = cell.data() + cell.size();
  const LeadingDouble number = ReadDouble(cell.data(), end);
  if (number.end == end) {
    value = number.value;
    return FitsSinglePrecision(value);
  }
  value = ParseDouble(cell);
  return false;
}

}  // namespace orvane
