#pragma once

#include <cstddef>
#include <string>

#include "formats/htr/read_observer.h"
#include "inspect/check/findings.h"

// Cells of an HTR file that outlive the call which tells of them.

namespace orvane::htr {

// A copy of a cell's text, and its place. Lines and columns count from 1.
struct KeptCell {
  KeptCell() = default;
  explicit KeptCell(const HtrCell& cell) : text(cell.text), line(cell.line), column(cell.column) {}

  std::string text;
  std::size_t line = 0;
  std::size_t column = 0;
};

// Where a cell stands.
[[nodiscard]] inline FindingPlace PlaceOf(const HtrCell& cell) { return {cell.line, cell.column}; }
[[nodiscard]] inline FindingPlace PlaceOf(const KeptCell& cell) { return {cell.line, cell.column}; }

}  // namespace orvane::htr
