#include "formats/htr/transform_row.h"

namespace orvane {
namespace {

constexpr std::size_t kLongest = 1024;  // of the characters of a line that is worth it

}  // namespace

std::size_t TransformRow::ReadFrame(std::string_view ahead) {
  is_ordinary_ = true;
  ahead = ahead.substr(0, kLongest);
  if (ahead.starts_with('[')) return 0;
  cells_.StartRow();
  const char* begin = ahead.data();
  const char* const end = begin + ahead.size();
  const char* cell_end = FindSeparator<BelowNumbers>(begin, end);
  for (std::size_t index = 0; index < kNumbers; ++index) {
    if (cell_end == begin || cell_end == end || !IsSeparator(*cell_end)) return 0;
    begin = cell_end + 1;
    cell_end = cells_.Read(ahead, begin, index, values_[index]);
  }
  if (cell_end == begin || cell_end == end || !cells_.AreOrdinary()) return 0;
  return SizeWithBreak(ahead, static_cast<std::size_t>(cell_end - ahead.data()));
}

}  // namespace orvane
