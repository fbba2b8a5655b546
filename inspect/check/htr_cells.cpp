#include "inspect/check/htr_cells.h"

#include "formats/text/lines.h"
#include "formats/text/numbers.h"
#include "formats/text/tokens.h"

namespace orvane::htr {

bool StartsWithNumber(std::string_view rest) {
  const std::string_view cell = SkipSeparators(rest);
  return ReadDouble(cell.data(), cell.data() + cell.size()).end != cell.data();
}

std::optional<FindingPlace> FindEmptyCell(const HtrCell& cell) {
  const std::size_t before = cell.column - 1;
  if (before > kLongestPiece) return std::nullopt;
  const std::string_view line =
      TrimTrailingSeparators(std::string_view(cell.text.data() - before, before));
  bool is_empty = true;  // what stands behind the last tab, or the start of the line
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (line[at] == '\t' && is_empty) return FindingPlace{cell.line, at + 1};
    is_empty = line[at] == '\t' || (is_empty && line[at] == ' ');
  }
  return std::nullopt;
}

}  // namespace orvane::htr
