#pragma once

#include <optional>
#include <string_view>

#include "inspect/check/findings.h"
#include "inspect/check/htr_parts.h"

// What the cells of a line say when they are not as many as its columns. Cells are what stands
// between blanks and tabs, however many. Nothing fails.

namespace orvane::htr {

// Whether what stands behind the last column of a line starts with a number, and not with text: a
// number too many may stand further ahead, and those behind it belong to other columns.
[[nodiscard]] bool StartsWithNumber(std::string_view rest);

// The first place in the line of `cell` where a tab follows another, or starts the line, with
// nothing but blanks between, and a cell behind: one was emptied there. Nothing when
// there is no such place before `cell`, whose text is a view into its line, even if it is empty,
// nor where the line is read in pieces.
[[nodiscard]] std::optional<FindingPlace> FindEmptyCell(const HtrCell& cell);

}  // namespace orvane::htr
